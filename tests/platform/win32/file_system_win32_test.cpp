// The Win32 file calls on real files. The writes, lists, renames and
// removals are driven through jeer.exe pack by the command tests.
#include <gtest/gtest.h>

#include "helpers/temp_dir.h"
#include "platform/file_system.h"

namespace jeerbox {
namespace {

TEST(Win32FileSystem, ReadsBytesAsTheyAreThroughBackslashPaths) {
  testing::TempDir dir;
  // CR LF, NUL and ^Z: a text-mode read would change or stop at them.
  const std::string bytes("a\r\n\0\x1a\xff[b\n", 9);
  dir.Write("System/Misc.001", bytes);
  IFileSystem& fs = HostFileSystem();
  std::string read;
  EXPECT_TRUE(fs.FileExists(dir.Path() + "\\System\\Misc.001"));
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System\\Misc.001", &read, bytes.size()), FileStatus::kOk);
  EXPECT_EQ(read, bytes);
  // One byte over the limit is unreadable, not cut short.
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System\\Misc.001", &read, bytes.size() - 1), FileStatus::kError);
  EXPECT_EQ(read, "");
  EXPECT_EQ(NativePath(dir.Path() + "\\System"), dir.Path() + "\\System");
}

TEST(Win32FileSystem, TellsMissingFromUnreadable) {
  testing::TempDir dir;
  dir.Write("System/keep", "");
  IFileSystem& fs = HostFileSystem();
  std::string read = "stale";
  EXPECT_FALSE(fs.FileExists(dir.Path() + "\\nothing"));
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\nothing", &read, kMaxWordListBytes), FileStatus::kNotFound);
  EXPECT_EQ(read, "");
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\no\\such\\dir", &read, kMaxWordListBytes), FileStatus::kNotFound);
  // A directory exists but can't be read as a file.
  EXPECT_TRUE(fs.FileExists(dir.Path() + "\\System"));
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System", &read, kMaxWordListBytes), FileStatus::kError);
  EXPECT_EQ(read, "");
}

TEST(Win32FileSystem, ListsFilesOnlySortedAndFailsForAMissingDirectory) {
  testing::TempDir dir;
  dir.Write("b", "");
  dir.Write("a.txt", "");
  dir.Write("sub/c", "");
  std::vector<std::string> names;
  std::string error;
  ASSERT_TRUE(HostFileSystem().ListFiles(dir.Path() + "\\", &names, &error)) << error;
  EXPECT_EQ(names, (std::vector<std::string>{"a.txt", "b"}));
  EXPECT_FALSE(HostFileSystem().ListFiles(dir.Path() + "\\missing", &names, &error));
  EXPECT_FALSE(error.empty());
}

}  // namespace
}  // namespace jeerbox
