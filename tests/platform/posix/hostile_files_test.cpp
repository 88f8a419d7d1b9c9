// Files a user can put where the program reads one: each kind at each place.
// The program goes on every time with the place's neutral result, and
// nothing blocks (a read that waited on a pipe would hang the test). First,
// the POSIX read itself: bytes as they are, up to the limit, and a missing
// file told from one that can't be read.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/packer.h"
#include "compose/MJeerbox.h"
#include "helpers/recording_audio_control.h"
#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"
#include "platform/file_system.h"
#include "sound/FDMC.h"
#include "sound/MSounds.h"
#include "support/CSettings.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"

namespace jeerbox::testing {
namespace {

TEST(PosixFileSystem, ReadsBytesAsTheyAreUpToTheLimitAndTellsMissingFromUnreadable) {
  TempDir dir;
  // Small files take one read; one past the first read's 120 KB is read on.
  const std::string bytes("a\r\n\0\xff[b", 7), large = bytes + std::string(200 << 10, 'x');
  dir.Write("System/Misc.001", bytes);
  dir.Write("large", large);
  const std::string file = dir.Path() + "\\System\\Misc.001", largeFile = dir.Path() + "\\large";
  const struct {
    const char* name;
    std::string path;
    size_t limit;
    FileStatus status;
    std::string read;
  } cases[] = {
      {"whole at the limit", file, bytes.size(), FileStatus::kOk, bytes},
      {"one byte over", file, bytes.size() - 1, FileStatus::kError, ""},
      {"large, whole at the limit", largeFile, large.size(), FileStatus::kOk, large},
      {"large, one byte over", largeFile, large.size() - 1, FileStatus::kError, ""},
      {"missing", dir.Path() + "\\nothing", 9, FileStatus::kNotFound, ""},
      {"through a file", file + "\\x", 9, FileStatus::kNotFound, ""},
  };
  for (const auto& c : cases) {
    std::string read = "stale";
    EXPECT_EQ(HostFileSystem().ReadFile(c.path, &read, c.limit), c.status) << c.name;
    EXPECT_EQ(read, c.read) << c.name;
  }
  // jeer pack's listing: regular files only, sorted.
  dir.Write("System/A.txt", "");
  dir.Write("System/sub/B", "");
  std::vector<std::string> names;
  ASSERT_TRUE(HostFileSystem().ListFiles(dir.Path() + "\\System", &names, nullptr));
  EXPECT_EQ(names, (std::vector<std::string>{"A.txt", "Misc.001"}));
}

using Maker = void (*)(const std::string& path);

struct Row {
  const char* name;
  bool regular;  // a regular file the program can read whole
  Maker make;
};

const Row kRows[] = {
    {"huge sparse file", false,  // 64 GiB, not one block of it written
     [](const std::string& path) {
       std::ofstream{path};
       std::filesystem::resize_file(path, std::uintmax_t{1} << 36);
     }},
    {"named pipe", false, [](const std::string& path) { mkfifo(path.c_str(), 0644); }},
    {"directory", false, [](const std::string& path) { std::filesystem::create_directory(path); }},
    {"device", false, [](const std::string& path) { std::filesystem::create_symlink("/dev/zero", path); }},
    {"unreadable", false,  // a regular file whose read fails, also for root
     [](const std::string& path) { std::filesystem::create_symlink("/proc/self/mem", path); }},
    {"empty", true, [](const std::string& path) { std::ofstream{path}; }},
    {"binary", true,
     [](const std::string& path) {
       std::ofstream(path, std::ios::binary)
           << std::string("\0\xff\r\n[\x92<{", 8) + std::string(4096, '\x1f');
     }},
};

void Make(const Row& row, const std::string& path) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  row.make(path);
}

TEST(HostileFiles, EveryKindAtEveryPlaceLeavesTheNeutralResult) {
  for (const Row& row : kRows) {
    TempDir dir;
    const std::string root = dir.Path() + "/";
    gAppPath = dir.Path();
    SeedRandom(3);
    auto fail = [&row](const char* place) { return std::string(row.name) + " as " + place; };

    // A word list: the fixed line, and sentences still come.
    Make(row, root + "System/Misc.001");
    EXPECT_TRUE(FileExists(gAppPath + "\\System\\Misc.001")) << fail("word list");
    EXPECT_EQ(CTextGenerator().GetText("Misc-Jeerbox-Noun"), kMissingFilesText) << fail("word list");
    EXPECT_FALSE(GenerateInsult().empty()) << fail("word list");

    // A later file of a family: it counts as empty and the scan goes on.
    dir.Write("System/General.001", ScrambledWriter().Section("General-Insult").Line("eel").Bytes());
    Make(row, root + "System/General.002");
    dir.Write("System/General.003", ScrambledWriter().Section("General-Insult").Line("newt").Bytes());
    EXPECT_EQ(CTextGenerator().GetCacheItem("General-Insult").size(), 2u) << fail("later file");

    // The settings file: the default.
    Make(row, root + "UserInfo/Tallowick.cfg");
    EXPECT_EQ(CSettings().ReadSetting("EnableFX", "none"), "none") << fail("settings");

    // A laugh: the mixer control is handed only a file it can read whole.
    Make(row, root + "Media/misc_laugh.wav");
    RecordingAudioControl control;
    FixedWaveDevices devices(1);
    FDMC audio(control, devices);
    audio.Setup();
    gFDMC = &audio;
    PlaySoundFX("misc_laugh");
    gFDMC = nullptr;
    EXPECT_EQ(control.Matching("LoadChannel").size(), row.regular ? 1u : 0u) << fail("media");

    // A source of jeer pack: packed, or refused with an error and exit 1.
    Make(row, root + "src/Misc.001.txt");
    std::ostringstream out, err;
    EXPECT_EQ(RunPack(root + "src", root + "packed", out, err), std::string(row.name) == "empty" ? 0 : 1)
        << fail("pack source");
  }
}

}  // namespace
}  // namespace jeerbox::testing
