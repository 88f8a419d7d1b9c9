// Files a user can put where the program reads one: each kind at each place.
// The program goes on every time with the place's neutral result, and
// nothing blocks (a read that waited on a pipe would hang the test).
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "cli/packer.h"
#include "compose/MJeerbox.h"
#include "helpers/recording_audio_control.h"
#include "helpers/scrambled_writer.h"
#include "helpers/silent_audio_control.h"
#include "helpers/temp_dir.h"
#include "sound/FDMC.h"
#include "sound/MSounds.h"
#include "support/CSettings.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"

namespace jeerbox::testing {
namespace {

enum class Kind { kHuge, kPipe, kDirectory, kDevice, kUnreadable, kEmpty, kBinary };

struct Row {
  const char* name;
  Kind kind;
  bool regular;  // a regular file the program can read whole
};

const Row kRows[] = {
    {"huge sparse file", Kind::kHuge, false}, {"named pipe", Kind::kPipe, false},
    {"directory", Kind::kDirectory, false},   {"device", Kind::kDevice, false},
    {"unreadable", Kind::kUnreadable, false}, {"empty", Kind::kEmpty, true},
    {"binary", Kind::kBinary, true},
};

void Make(Kind kind, const std::string& path) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  switch (kind) {
    case Kind::kHuge:  // 64 GiB, not one block of it written
      std::ofstream(path).close();
      std::filesystem::resize_file(path, std::uintmax_t{1} << 36);
      break;
    case Kind::kPipe:
      mkfifo(path.c_str(), 0644);
      break;
    case Kind::kDirectory:
      std::filesystem::create_directory(path);
      break;
    case Kind::kDevice:
      std::filesystem::create_symlink("/dev/zero", path);
      break;
    case Kind::kUnreadable:  // a regular file whose read fails, also for root
      std::filesystem::create_symlink("/proc/self/mem", path);
      break;
    case Kind::kEmpty:
      std::ofstream(path).close();
      break;
    case Kind::kBinary: {
      std::mt19937 rng(7);
      std::string noise(4096, '\0');
      for (char& c : noise) c = static_cast<char>(rng());
      std::ofstream(path, std::ios::binary) << noise;
      break;
    }
  }
}

TEST(HostileFiles, EveryKindAtEveryPlaceLeavesTheNeutralResult) {
  for (const Row& row : kRows) {
    TempDir dir;
    const std::string root = dir.Path() + "/";
    gAppPath = dir.Path();
    SeedRandom(3);
    auto fail = [&row](const char* place) { return std::string(row.name) + " as " + place; };

    // A word list: the fixed line, and sentences still come.
    Make(row.kind, root + "System/Misc.001");
    EXPECT_TRUE(FileExists(gAppPath + "\\System\\Misc.001")) << fail("word list");
    EXPECT_EQ(CTextGenerator().GetText("Misc-Jeerbox-Noun"), kMissingFilesText) << fail("word list");
    EXPECT_FALSE(GenerateInsult().empty()) << fail("word list");

    // A later file of a family: it counts as empty and the scan goes on.
    dir.Write("System/General.001", ScrambledWriter().Section("General-Insult").Line("eel").Bytes());
    Make(row.kind, root + "System/General.002");
    dir.Write("System/General.003", ScrambledWriter().Section("General-Insult").Line("newt").Bytes());
    EXPECT_EQ(CTextGenerator().GetCacheItem("General-Insult").size(), 2u) << fail("later file");

    // The settings file: the default.
    Make(row.kind, root + "UserInfo/Tallowick.cfg");
    EXPECT_EQ(CSettings().ReadSetting("EnableFX", "none"), "none") << fail("settings");

    // A laugh: the mixer control is handed only a file it can read whole.
    Make(row.kind, root + "Media/misc_laugh.wav");
    RecordingAudioControl control;
    FixedWaveDevices devices(1);
    FDMC audio(control, devices);
    audio.Setup();
    gFDMC = &audio;
    PlaySoundFX("misc_laugh");
    gFDMC = nullptr;
    EXPECT_EQ(control.Matching("LoadChannel").size(), row.regular ? 1u : 0u) << fail("media");

    // A source of jeer pack: packed, or refused with an error and exit 1.
    Make(row.kind, root + "src/Misc.001.txt");
    std::ostringstream out, err;
    EXPECT_EQ(RunPack(root + "src", root + "packed", out, err), row.kind == Kind::kEmpty ? 0 : 1)
        << fail("pack source");
  }
}

}  // namespace
}  // namespace jeerbox::testing
