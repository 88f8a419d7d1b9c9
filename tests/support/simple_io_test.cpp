#include "support/MSimpleIO.h"

#include <gtest/gtest.h>

#include "helpers/fake_file_system.h"

namespace jeerbox {
namespace {

struct PathCase {
  const char* input;
  const char* stripPath;
  const char* stripExtension;
  const char* baseName;
};

TEST(PathHelpers, TakePathsApartAtTheLastSeparator) {
  const PathCase cases[] = {
      {"C:\\app\\Media\\laugh.mp3", "laugh.mp3", "C:\\app\\Media\\laugh", "laugh"},
      {"name", "name", "name", "name"},
      {"dir\\", "", "dir\\", ""},
      {"a.b.c", "a.b.c", "a.b", "a.b"},
      {"C:\\my.dir\\name", "name", "C:\\my.dir\\name", "name"},
      {"General-Insult", "General-Insult", "General-Insult", "General-Insult"},
      {"", "", "", ""},
  };
  for (const PathCase& c : cases) {
    SCOPED_TRACE(c.input);
    EXPECT_EQ(StripPath(c.input), c.stripPath);
    EXPECT_EQ(StripExtension(c.input), c.stripExtension);
    EXPECT_EQ(BaseName(c.input), c.baseName);
  }
}

TEST(ChangeExtension, AcceptsTheExtensionWithOrWithoutItsDot) {
  EXPECT_EQ(ChangeExtension("x\\laugh1", "mp3"), "x\\laugh1.mp3");
  EXPECT_EQ(ChangeExtension("x\\laugh1", ".mp3"), "x\\laugh1.mp3");
  EXPECT_EQ(ChangeExtension("x\\laugh1.wav", "mp3"), "x\\laugh1.mp3");
}

TEST(ChangeExtension, EmptyOrLoneDotRemovesTheExtension) {
  EXPECT_EQ(ChangeExtension("laugh.wav", ""), "laugh");
  EXPECT_EQ(ChangeExtension("laugh.wav", "."), "laugh");
  EXPECT_EQ(ChangeExtension("laugh", ""), "laugh");
}

TEST(Trim, RemovesBlanksOnlyFromBothEnds) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim("\ta\r"), "\ta\r");
  EXPECT_EQ(Trim(""), "");
}

TEST(ReadWholeFile, GivesBytesOrNothing) {
  testing::FakeFileSystem fs;
  fs.Write("C:\\f", std::string("a\0b", 3));
  fs.AddUnreadable("C:\\dir");
  EXPECT_EQ(ReadWholeFile("C:\\f"), std::string("a\0b", 3));
  EXPECT_EQ(ReadWholeFile("C:\\missing"), "");
  EXPECT_EQ(ReadWholeFile("C:\\dir"), "");
  EXPECT_TRUE(FileExists("C:\\dir"));
  EXPECT_FALSE(FileExists("C:\\missing"));
}

}  // namespace
}  // namespace jeerbox
