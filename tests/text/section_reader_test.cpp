#include <gtest/gtest.h>

#include "helpers/fake_file_system.h"
#include "helpers/scrambled_writer.h"
#include "text/CTextGenerator.h"
#include "text/CTextUtils.h"
#include "text/MSimpleCrypto.h"
#include "text/find_bytes.h"

namespace jeerbox {
namespace {

using testing::ScrambledWriter;

std::vector<std::string> Pieces(std::string_view section) {
  LineList lines;
  AppendDataLines(section, &lines);
  return {lines.begin(), lines.end()};
}

// A holds lines 1 and 2 and an empty line, B lines 3 and 4.
TEST(ReadSection, EndsWithTheCrInFrontOfTheNextHead) {
  const std::string file = "[A]\r\none\r\ntwo\r\n\r\n[B]\r\nthree\r\nfour\r\n";
  EXPECT_EQ(CTextUtils::ReadSectionFromText("A", file), "\r\none\r\ntwo\r\n\r");
  EXPECT_EQ(CTextUtils::ReadSectionFromText("B", file), "\r\nthree\r\nfour\r\n");
  EXPECT_EQ(Pieces("\r\none\r\ntwo\r\n\r"), (std::vector<std::string>{"one", "two"}));
  EXPECT_EQ(Pieces("\r\nthree\r\nfour"), (std::vector<std::string>{"three", "four"}));
}

TEST(ReadSection, MissingKeyOrHeadAtTheEndGivesNothing) {
  EXPECT_EQ(CTextUtils::ReadSectionFromText("C", "[A]\r\nx\r\n"), "");
  EXPECT_EQ(CTextUtils::ReadSectionFromText("A", "[A]"), "");
  EXPECT_EQ(CTextUtils::ReadSectionFromText("A", "[A]\r\n"), "\r\n");
  EXPECT_TRUE(Pieces("\r\n").empty());
}

// Near matches, packed thick, send the search down its linear path, which
// must find what a plain search finds: at every offset, for needles that
// overlap themselves too.
TEST(FindBytes, AgreesWithAPlainSearchAmongNearMatches) {
  for (const std::string& needle :
       {std::string("aab"), std::string("abaab"), SimpleCrypt("Misc-Jeerbox-Noun")}) {
    const std::string nearly = needle.substr(0, needle.size() - 1);
    for (size_t count = 0; count < 150; ++count) {
      std::string repeated;
      for (size_t i = 0; i < count; ++i) repeated += nearly;
      for (const std::string& haystack : {repeated + needle + nearly, std::string(count, needle[0]) + needle})
        ASSERT_EQ(FindBytes(haystack, needle), haystack.find(needle)) << needle << " after " << count;
    }
  }
}

TEST(ReadSection, HeadFollowedByHeadHoldsALoneCr) {
  const std::string file = "[A]\r\n[B]\r\nx\r\n";
  EXPECT_EQ(CTextUtils::ReadSectionFromText("A", file), "\r");
  EXPECT_TRUE(Pieces("\r").empty());
}

TEST(ReadSection, TheFirstOccurrenceCountsWhateverSurroundsIt) {
  // "A" occurs inside the comment first; the section starts two characters on.
  EXPECT_EQ(CTextUtils::ReadSectionFromText("A", ";xAyz\r\n[A]\r\nreal\r\n"), "z\r");
}

TEST(DataLines, StoredFormDecidesWhatIsDropped) {
  const std::vector<std::string> kept = Pieces("\r\n;comment\r\n   \r\n\r\n  \r\nword\r\n x \r\n");
  EXPECT_EQ(kept, (std::vector<std::string>{"word", " x "}));
  // A line of blanks in front of a head keeps its CR, and then counts.
  EXPECT_EQ(Pieces("\r\n  \r"), (std::vector<std::string>{"  \r"}));
}

TEST(ReadSectionNamesFromFile, ListsEveryHeadInFileOrder) {
  testing::FakeFileSystem fs;
  ScrambledWriter writer;
  writer.Section("General-Insult").Line("x").Section("General-Curse").Line("y");
  fs.Write("C:\\f", writer.Bytes());
  fs.Write("C:\\plain", "no heads here\r\n[unclosed\r\n");
  EXPECT_EQ(CTextUtils::ReadSectionNamesFromFile("C:\\f", false),
            (std::vector<std::string>{"General-Insult", "General-Curse"}));
  EXPECT_EQ(CTextUtils::ReadSectionNamesFromFile("C:\\f", true)[1], SimpleCrypt("General-Curse"));
  EXPECT_TRUE(CTextUtils::ReadSectionNamesFromFile("C:\\plain", false).empty());
  EXPECT_TRUE(CTextUtils::ReadSectionNamesFromFile("C:\\missing", false).empty());
}

TEST(ReadSectionFromFile, ReadsTheFileThroughThePlatform) {
  testing::FakeFileSystem fs;
  fs.Write("C:\\f", "[" + SimpleCrypt("K-1") + "]\r\nabc\r\n");
  EXPECT_EQ(CTextUtils::ReadSectionFromFile(SimpleCrypt("K-1"), "C:\\f"), "\r\nabc\r\n");
  EXPECT_EQ(CTextUtils::ReadSectionFromFile(SimpleCrypt("K-1"), "C:\\none"), "");
}

}  // namespace
}  // namespace jeerbox
