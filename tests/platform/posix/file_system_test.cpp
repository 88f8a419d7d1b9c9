#include "platform/file_system.h"

#include <gtest/gtest.h>

#include "helpers/temp_dir.h"

namespace jeerbox {
namespace {

TEST(NativePath, TurnsBackslashesIntoSlashes) {
  EXPECT_EQ(NativePath("/opt/jeerbox\\System\\Misc.001"), "/opt/jeerbox/System/Misc.001");
  EXPECT_EQ(NativePath("plain"), "plain");
}

TEST(PosixFileSystem, ReadsBytesAsTheyAreUpToTheLimit) {
  testing::TempDir dir;
  const std::string bytes("a\r\n\0\xff[b", 7);
  dir.Write("System/Misc.001", bytes);
  IFileSystem& fs = HostFileSystem();
  std::string read;
  EXPECT_TRUE(fs.FileExists(dir.Path() + "\\System\\Misc.001"));
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System\\Misc.001", &read, bytes.size()), FileStatus::kOk);
  EXPECT_EQ(read, bytes);
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System\\Misc.001", &read, bytes.size() - 1), FileStatus::kError);
  EXPECT_EQ(read, "");
}

// Other kinds of file (pipes, devices, directories) are in bad_files_test.
TEST(PosixFileSystem, TellsMissingFromUnreadable) {
  testing::TempDir dir;
  dir.Write("System/keep", "");
  std::string read = "stale";
  EXPECT_FALSE(HostFileSystem().FileExists(dir.Path() + "\\nothing"));
  EXPECT_EQ(HostFileSystem().ReadFile(dir.Path() + "\\nothing", &read, 1), FileStatus::kNotFound);
  EXPECT_EQ(read, "");
  // A path through a file is not found, not an error.
  EXPECT_EQ(HostFileSystem().ReadFile(dir.Path() + "\\System\\keep\\x", &read, 1), FileStatus::kNotFound);
}

}  // namespace
}  // namespace jeerbox
