// The pictures jeerbox.exe carries, as Windows loads them from it: the
// 32 x 32 icon, the hand cursor with its hot spot at the fingertip, the
// 429 x 44 banner. They are converted from data/images/ at build time.
#include <gtest/gtest.h>
#include <windows.h>

#include "app/win32/resource_ids.h"

namespace jeerbox {
namespace {

class ProgramResources : public ::testing::Test {
 protected:
  ProgramResources() : mModule(LoadLibraryExW(JEERBOX_EXE, nullptr, LOAD_LIBRARY_AS_DATAFILE)) {}
  ~ProgramResources() override {
    if (mModule) FreeLibrary(mModule);
  }
  HANDLE Load(int id, UINT type) const {
    return mModule ? LoadImageW(mModule, MAKEINTRESOURCEW(id), type, 0, 0, 0) : nullptr;
  }

  HMODULE mModule;
};

TEST_F(ProgramResources, IconCursorAndBanner) {
  ASSERT_NE(mModule, nullptr);
  auto* cursor = static_cast<HCURSOR>(Load(JEERBOX_HAND_CURSOR, IMAGE_CURSOR));
  ICONINFO info{};
  ASSERT_TRUE(cursor && GetIconInfo(cursor, &info));
  EXPECT_FALSE(info.fIcon);
  EXPECT_EQ(info.xHotspot, 5u);
  EXPECT_EQ(info.yHotspot, 0u);
  DeleteObject(info.hbmMask);
  DeleteObject(info.hbmColor);

  auto* icon = static_cast<HICON>(Load(JEERBOX_ICON, IMAGE_ICON));
  ASSERT_TRUE(icon && GetIconInfo(icon, &info));
  BITMAP colour{};
  GetObjectW(info.hbmColor, sizeof colour, &colour);
  EXPECT_EQ(colour.bmWidth, 32);
  EXPECT_EQ(colour.bmHeight, 32);
  DeleteObject(info.hbmMask);
  DeleteObject(info.hbmColor);

  auto* banner = static_cast<HBITMAP>(Load(JEERBOX_BANNER, IMAGE_BITMAP));
  BITMAP picture{};
  ASSERT_TRUE(banner && GetObjectW(banner, sizeof picture, &picture));
  EXPECT_EQ(picture.bmWidth, 429);
  EXPECT_EQ(picture.bmHeight, 44);
  DeleteObject(banner);
}

}  // namespace
}  // namespace jeerbox
