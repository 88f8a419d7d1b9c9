// The Win32 file calls on real files: bytes as they are through backslash
// paths, a missing file told from one that can't be read, and the listing
// jeer pack works from (its writes, renames and removals are driven through
// jeer.exe by the command tests).
#include <gtest/gtest.h>

#include "helpers/temp_dir.h"
#include "platform/file_system.h"

namespace jeerbox {
namespace {

TEST(Win32FileSystem, ReadsBytesAsTheyAreAndTellsMissingFromUnreadable) {
  testing::TempDir dir;
  // CR LF, NUL and ^Z: a text-mode read would change or stop at them.
  const std::string bytes("a\r\n\0\x1a\xff[b\n", 9);
  dir.Write("System/Misc.001", bytes);
  const struct {
    const char* name;
    FileStatus status;
    std::string read;
  } cases[] = {{"System\\Misc.001", FileStatus::kOk, bytes},
               {"nothing", FileStatus::kNotFound, ""},
               {"no\\such\\dir", FileStatus::kNotFound, ""},
               {"System", FileStatus::kError, ""}};  // a directory exists but isn't read
  for (const auto& c : cases) {
    std::string read = "stale";
    EXPECT_EQ(HostFileSystem().ReadFile(dir.Path() + "\\" + c.name, &read, 1 << 20), c.status) << c.name;
    EXPECT_EQ(read, c.read) << c.name;
    EXPECT_EQ(HostFileSystem().FileExists(dir.Path() + "\\" + c.name), c.status != FileStatus::kNotFound)
        << c.name;
  }
  // One byte over the limit is unreadable, not cut short.
  std::string read;
  EXPECT_EQ(HostFileSystem().ReadFile(dir.Path() + "\\System\\Misc.001", &read, bytes.size() - 1),
            FileStatus::kError);
}

TEST(Win32FileSystem, ListsFilesOnlySortedAndFailsForAMissingDirectory) {
  testing::TempDir dir;
  for (const char* name : {"b", "a.txt", "sub/c"}) dir.Write(name, "");
  std::vector<std::string> names;
  std::string error;
  ASSERT_TRUE(HostFileSystem().ListFiles(dir.Path() + "\\", &names, &error)) << error;
  EXPECT_EQ(names, (std::vector<std::string>{"a.txt", "b"}));
  EXPECT_FALSE(HostFileSystem().ListFiles(dir.Path() + "\\missing", &names, &error));
  EXPECT_FALSE(error.empty());
}

}  // namespace
}  // namespace jeerbox
