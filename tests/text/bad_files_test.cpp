// Word-list files a user can meet on disk: empty, binary, cut short, huge,
// unreadable, in the wrong place. The program shows a sentence every time.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <random>

#include "compose/MJeerbox.h"
#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"

namespace jeerbox::testing {
namespace {

class BadFilesTest : public ::testing::Test {
 protected:
  BadFilesTest() {
    gAppPath = dir.Path();
    SeedRandom(3);
  }
  std::string Noun() {
    CTextGenerator generator;
    return generator.GetText("Misc-Jeerbox-Noun");
  }
  static std::string NounFile(const std::string& noun) {
    return ScrambledWriter().Section("Misc-Jeerbox-Noun").Line(noun).Bytes();
  }

  TempDir dir;
};

TEST_F(BadFilesTest, EmptyFileGivesTheFixedLine) {
  dir.Write("System/Misc.001", "");
  EXPECT_EQ(Noun(), kMissingFilesText);
  EXPECT_FALSE(GenerateInsult().empty());
}

TEST_F(BadFilesTest, BinaryNoiseNeverStopsASentence) {
  std::mt19937 rng(7);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int round = 0; round < 20; ++round) {
    std::string noise(4096, '\0');
    for (char& c : noise) c = static_cast<char>(byte(rng));
    dir.Write("System/Misc.001", noise + "\r\n" + NounFile("eel"));
    EXPECT_EQ(Noun(), "eel");  // what stands in front of the first head is passed over
    dir.Write("System/Misc.001", NounFile("eel") + noise);
    EXPECT_FALSE(GenerateInsult().empty());
  }
}

TEST_F(BadFilesTest, AFileCutMidLineKeepsWhatItHas) {
  const std::string whole = NounFile("pudding");
  dir.Write("System/Misc.001", whole.substr(0, whole.size() - 5));  // "pudd" and no line end
  EXPECT_EQ(Noun(), "pudd");
}

TEST_F(BadFilesTest, AFiftyMegabyteFileIsReadOnceAndFinishes) {
  std::string big = ";" + std::string(50u << 20, 'x') + "\r\n";
  big += NounFile("walrus");
  dir.Write("System/Misc.001", big);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Noun(), "walrus");
  EXPECT_FALSE(GenerateInsult().empty());
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST_F(BadFilesTest, AnUnreadableFileCountsAsEmptyAndLaterOnesStillCount) {
  std::filesystem::create_directories(dir.Path() + "/System/Misc.001");  // exists, can't be read
  dir.Write("System/Misc.002", NounFile("newt"));
  EXPECT_EQ(Noun(), "newt");
}

TEST_F(BadFilesTest, SystemThatIsAFileIsLikeNoFiles) {
  dir.Write("System", NounFile("toad"));
  EXPECT_EQ(Noun(), kMissingFilesText);
}

TEST_F(BadFilesTest, AFamilyNumberedOneToNineHundredNinetyNine) {
  for (int n = 1; n <= 999; ++n) {
    char name[32];
    std::snprintf(name, sizeof name, "System/Misc.%03d", n);
    dir.Write(name, n == 999 ? NounFile("last") : ScrambledWriter().Section("Misc-Other").Line("x").Bytes());
  }
  dir.Write("System/Misc.1000", NounFile("never"));
  EXPECT_EQ(Noun(), "last");
}

}  // namespace
}  // namespace jeerbox::testing
