// Word-list files a user can meet on disk: cut short, in the wrong place, a
// whole family of them. Other kinds of file, at every place the program
// reads, are in tests/platform/posix/hostile_files_test.cpp.
#include <gtest/gtest.h>

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

TEST_F(BadFilesTest, AFileCutMidLineKeepsWhatItHas) {
  const std::string whole = NounFile("pudding");
  dir.Write("System/Misc.001", whole.substr(0, whole.size() - 5));  // "pudd" and no line end
  EXPECT_EQ(Noun(), "pudd");
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
