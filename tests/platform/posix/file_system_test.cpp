#include "platform/file_system.h"

#include <unistd.h>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "helpers/temp_dir.h"

namespace jeerbox {
namespace {

TEST(NativePath, TurnsBackslashesIntoSlashes) {
  EXPECT_EQ(NativePath("/opt/jeerbox\\System\\Misc.001"), "/opt/jeerbox/System/Misc.001");
  EXPECT_EQ(NativePath("plain"), "plain");
}

TEST(PosixFileSystem, ReadsBytesAsTheyAreThroughBackslashPaths) {
  testing::TempDir dir;
  const std::string bytes("a\r\n\0\xff[b", 7);
  dir.Write("System/Misc.001", bytes);
  IFileSystem& fs = HostFileSystem();
  std::string read;
  EXPECT_TRUE(fs.FileExists(dir.Path() + "\\System\\Misc.001"));
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System\\Misc.001", &read), FileStatus::kOk);
  EXPECT_EQ(read, bytes);
}

TEST(PosixFileSystem, TellsMissingFromUnreadable) {
  testing::TempDir dir;
  dir.Write("System/keep", "");
  IFileSystem& fs = HostFileSystem();
  std::string read = "stale";
  EXPECT_FALSE(fs.FileExists(dir.Path() + "\\nothing"));
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\nothing", &read), FileStatus::kNotFound);
  EXPECT_EQ(read, "");
  // A directory exists but can't be read as a file.
  EXPECT_TRUE(fs.FileExists(dir.Path() + "\\System"));
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System", &read), FileStatus::kError);
  // A path through a file is not found, not an error.
  EXPECT_EQ(fs.ReadFile(dir.Path() + "\\System\\keep\\x", &read), FileStatus::kNotFound);
}

TEST(PosixFileSystem, UnreadableFileIsAnErrorNotMissing) {
  if (geteuid() == 0) GTEST_SKIP() << "root reads every file";
  testing::TempDir dir;
  dir.Write("locked", "secret");
  chmod((dir.Path() + "/locked").c_str(), 0);
  std::string read;
  EXPECT_EQ(HostFileSystem().ReadFile(dir.Path() + "/locked", &read), FileStatus::kError);
}

}  // namespace
}  // namespace jeerbox
