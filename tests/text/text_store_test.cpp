// The text store: sections as read from a file, the item
// cache, and the line lists and picks of a key over its family's files.
#include <gtest/gtest.h>

#include <map>

#include "text/CTextUtils.h"
#include "text/find_bytes.h"
#include "text/text_fixture.h"
#include "text/wordlist_format.h"

namespace jeerbox::testing {
namespace {

using Strings = std::vector<std::string>;

// A section runs from behind its head's "]" to the CR in front of the next
// head; its pieces between CR LFs are data unless dropped in stored form.
TEST(ReadSection, TakesTheDataLinesOfTheFirstOccurrence) {
  const std::string file = "[A]\r\none\r\ntwo\r\n\r\n[B]\r\nthree\r\nfour\r\n";
  const std::tuple<const char*, std::string, Strings> rows[] = {
      {"A", file, {"one", "two"}},
      {"B", file, {"three", "four"}},
      {"C", file, {}},
      {"A", "[A]\r\nthree\r\nfour", {"three", "four"}},
      {"A", "[A]", {}},
      {"A", "[A]\r\n", {}},
      {"A", "[A]\r\n[B]\r\nx\r\n", {}},
      {"A", ";xAyz\r\n[A]\r\nreal\r\n", {"z\r"}},
      {"A", "[A]\r\n;comment\r\n   \r\n\r\n  \r\nword\r\n x \r\n", {"word", " x "}},
      {"A", "[A]\r\nlast\r\n[B]", {"last\r"}},
      {"A", "[A]\r\n  \r\n[B]", {"  \r"}}};
  for (const auto& [key, text, lines] : rows) {
    LineList list;
    AppendDataLines(CTextUtils::ReadSectionFromText(key, text), &list);
    EXPECT_EQ(Strings(list.begin(), list.end()), lines) << text;
  }
}

// Near matches send the search down its linear path; it must find what a
// plain search finds, for needles that overlap themselves too.
TEST(FindBytes, AgreesWithAPlainSearchAmongNearMatches) {
  for (const std::string& needle : {std::string("abaab"), SimpleCrypt("Misc-Jeerbox-Noun")}) {
    std::string haystack;
    for (size_t count = 0; count < 40; ++count, haystack += needle.substr(0, needle.size() - 1))
      for (const std::string& text : {haystack + needle, std::string(count, needle[0]) + needle})
        ASSERT_EQ(FindBytes(text, needle), text.find(needle)) << needle << " after " << count;
  }
}

TEST(ReadSectionNamesFromFile, ListsEveryHeadInFileOrder) {
  FakeFileSystem fs;
  fs.Write("C:\\f", ScrambledWriter().Section("General-Insult").Line("x").Raw("[]").Raw("[open").Bytes());
  EXPECT_EQ(CTextUtils::ReadSectionNamesFromFile("C:\\f", false), (Strings{"General-Insult", ""}));
  EXPECT_EQ(CTextUtils::ReadSectionNamesFromFile("C:\\f", true)[0], SimpleCrypt("General-Insult"));
  EXPECT_TRUE(CTextUtils::ReadSectionNamesFromFile("C:\\missing", false).empty());
}

TEST(NumberedFileName, TakesFamilyAndThreeDigitsApart) {
  // Rows: name, family ("" not taken), number.
  const std::tuple<const char*, const char*, int> rows[] = {
      {"Misc.001", "Misc", 1}, {"a.b.042", "a.b", 42},  {"Misc.999", "Misc", 999}, {"Misc.000", "", 0},
      {".001", "", 0},         {"Misc.01", "", 0},      {"Misc.1000", "", 0},      {"Misc.0a1", "", 0},
      {"Misc.00/", "", 0},     {"Misc.001.txt", "", 0}, {"Misc001", "", 0}};
  for (const auto& [name, family, number] : rows) {
    std::pair<std::string, int> parsed;
    EXPECT_EQ(ParseNumberedFileName(name, &parsed.first, &parsed.second), *family != '\0') << name;
    if (*family == '\0') continue;
    EXPECT_EQ(parsed, std::make_pair(std::string(family), number)) << name;
  }
}

// Hands out "ID#n" for the n-th request of an ID.
struct Cache : IItemCacheProvider<std::string> {
  explicit Cache(int capacity) { cache.Setup(capacity); }
  std::string GetCacheItem(const std::string& id) override { return id + "#" + std::to_string(++calls[id]); }
  std::string Get(const std::string& id) { return cache.GetItem(id, *this); }
  CFileCache<std::string> cache;
  std::map<std::string, int> calls;
};

TEST(FileCache, AHitAsksNothingAndDirectoryAndExtensionTakeNoPart) {
  Cache c(20);
  EXPECT_EQ(c.Get("C:\\one\\laugh.mp3"), "C:\\one\\laugh.mp3#1");  // the provider gets the identifier
  EXPECT_EQ(c.Get("C:\\one\\laugh.mp3"), "C:\\one\\laugh.mp3#1");
  EXPECT_EQ(c.Get("D:\\two\\laugh.wav"), "C:\\one\\laugh.mp3#1");
}

// First in, first out: a hit doesn't make an entry younger. A key that is
// only a part of a listed one is listed on its own, and pushes it out.
TEST(FileCache, TheKeyPastCapacityEvictsTheOldestEvenIfJustUsed) {
  Cache c(20);
  for (int i = 1; i <= 20; ++i) c.Get("k" + std::to_string(i));
  c.Get("k1");
  c.Get("k21");
  EXPECT_EQ(c.Get("k2"), "k2#1");
  EXPECT_EQ(c.Get("k1"), "k1#2");  // back as the newest, so k2 goes
  EXPECT_EQ(c.Get("k2"), "k2#2");
  Cache one(1);
  one.Get("General-Insult");
  EXPECT_EQ(one.Get("Insult"), "Insult#1");
  EXPECT_EQ(one.Get("General-Insult"), "General-Insult#2");
}

using StoreTest = TextStoreTest;

TEST_F(StoreTest, AKeyIsItsLinesOverTheFamilyInOrderEachAsLikely) {
  WriteLists("General.001", {{"General-Insult", {"0", "1"}}, {"General-Curse", {"c"}}});
  WriteLists("General.002", {{"General-Curse", {"d"}}, {"General-Insult", {"2"}}});
  WriteLists("General.004", {{"General-Insult", {"past the gap"}}});
  EXPECT_EQ(ReadKeyLines("General-Insult"), (Strings{"0", "1", "2"}));
  EXPECT_EQ(ReadKeyLines("General-Curse"), (Strings{"c", "d"}));
  CTextGenerator generator;
  for (int i = 0; i < 3; ++i) {
    random.Push(PickIndex(i, 3));
    EXPECT_EQ(generator.GetText("General-Insult"), std::to_string(i));
  }
  EXPECT_EQ(random.Reseeds(), 3);  // every pick reseeds first
  EXPECT_EQ(random.Draws(), 3);
}

TEST_F(StoreTest, NothingFoundIsOneEmptyLineAndPicksTheFixedText) {
  EXPECT_EQ(ReadKeyLines("General-Insult"), Strings{""});
  WriteLists("General.001", {{"General-Curse", {"c"}}});
  WriteFile("General.002", ScrambledWriter().Section("General-Insult").Comment("only a comment"));
  EXPECT_EQ(ReadKeyLines("General-Insult"), Strings{""});
  EXPECT_EQ(CTextGenerator().GetText("General-Insult"), kMissingFilesText);
}

// A stored ";" line is dropped whatever it would unscramble to; a line that
// unscrambles to blanks is a pick of "", not the fixed text.
TEST_F(StoreTest, StoredLinesAreTestedBeforeUnscramblingAndPicksAreTrimmed) {
  WriteFile("Misc.001",
            ScrambledWriter().Section("Misc-A").Raw(";" + SimpleCrypt("x")).Lines({"  kept  ", "   "}));
  EXPECT_EQ(ReadKeyLines("Misc-A"), (Strings{"  kept  ", "   "}));
  CTextGenerator generator;
  random.Push(PickIndex(0, 2));
  EXPECT_EQ(generator.GetText("Misc-A"), "kept");
  random.Push(PickIndex(1, 2));
  EXPECT_EQ(generator.GetText("Misc-A"), "");
}

TEST_F(StoreTest, AMarkedFileCountsOnlyWhileMarkedTextIsAllowedWhereverTheMarkerStands) {
  const std::string marker = SimpleCrypt("<XT>");
  WriteLists("Misc.001", {{"Misc-A", {"plain"}}});
  for (const ScrambledWriter& file :
       {ScrambledWriter().Marker().Section("Misc-A").Line("marked"),
        ScrambledWriter().Section("Misc-A").Line("marked").Comment("x" + marker),
        ScrambledWriter().Section("Misc-A").Line("marked").Raw("ab" + marker)}) {
    WriteFile("Misc.002", file);
    gAllowMarkedText = true;
    EXPECT_EQ(ReadKeyLines("Misc-A").at(1), "marked") << file.Bytes();
    gAllowMarkedText = false;
    EXPECT_EQ(ReadKeyLines("Misc-A"), Strings{"plain"}) << file.Bytes();
  }
}

TEST_F(StoreTest, NineHundredNinetyNineFilesAndNoThousandth) {
  for (int n = 1; n <= 999; ++n) {
    char name[16];
    std::snprintf(name, sizeof name, "Misc.%03d", n);
    WriteLists(name, {{n == 999 ? "Misc-A" : "Misc-Other", {"last"}}});
  }
  WriteLists("Misc.1000", {{"Misc-A", {"never"}}});
  EXPECT_EQ(ReadKeyLines("Misc-A"), Strings{"last"});
}

}  // namespace
}  // namespace jeerbox::testing
