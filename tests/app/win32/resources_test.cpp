// The pictures jeerbox.exe carries, as Windows loads them from it: the icon,
// the banner, and the hand cursor that xpm-to-cur.sh makes with the XPM's
// hot spot at the fingertip.
#include <gtest/gtest.h>
#include <windows.h>

#include "app/win32/resource_ids.h"

namespace jeerbox {
namespace {

TEST(ProgramResources, IconBannerAndTheCursorWithItsHotSpot) {
  HMODULE program = LoadLibraryExW(JEERBOX_EXE, nullptr, LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(program, nullptr);
  EXPECT_NE(LoadImageW(program, MAKEINTRESOURCEW(JEERBOX_ICON), IMAGE_ICON, 0, 0, 0), nullptr);
  EXPECT_NE(LoadImageW(program, MAKEINTRESOURCEW(JEERBOX_BANNER), IMAGE_BITMAP, 0, 0, 0), nullptr);
  auto* cursor =
      static_cast<HCURSOR>(LoadImageW(program, MAKEINTRESOURCEW(JEERBOX_HAND_CURSOR), IMAGE_CURSOR, 0, 0, 0));
  ICONINFO info{};
  ASSERT_TRUE(cursor && GetIconInfo(cursor, &info));
  EXPECT_FALSE(info.fIcon);
  EXPECT_EQ(info.xHotspot, 5u);
  EXPECT_EQ(info.yHotspot, 0u);
  FreeLibrary(program);
}

}  // namespace
}  // namespace jeerbox
