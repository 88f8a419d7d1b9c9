#include <gtest/gtest.h>

#include "text/MSimpleCrypto.h"
#include "text/text_fixture.h"

namespace jeerbox::testing {
namespace {

using StoreTest = TextStoreTest;

TEST_F(StoreTest, CollectsAKeyOverTheFilesOfItsFamilyInOrder) {
  WriteLists("General.001", {{"General-Insult", {"one", "two"}}, {"General-Curse", {"c"}}});
  WriteLists("General.002", {{"General-Curse", {"d"}}, {"General-Insult", {"three"}}});
  EXPECT_EQ(Lines("General-Insult"), (std::vector<std::string>{"one", "two", "three"}));
  EXPECT_EQ(Lines("General-Curse"), (std::vector<std::string>{"c", "d"}));
}

TEST_F(StoreTest, TheScanStopsAtTheFirstMissingNumber) {
  WriteLists("General.001", {{"General-Insult", {"one"}}});
  WriteLists("General.003", {{"General-Insult", {"unreached"}}});
  EXPECT_EQ(Lines("General-Insult"), (std::vector<std::string>{"one"}));
  EXPECT_EQ(fs.Reads(SystemFile("General.003")), 0);
  EXPECT_EQ(fs.Touched().back(), SystemFile("General.002"));
}

TEST_F(StoreTest, NothingFoundIsOneEmptyLineAndPicksTheFixedText) {
  EXPECT_EQ(Lines("General-Insult"), (std::vector<std::string>{""}));
  WriteLists("General.001", {{"General-Curse", {"c"}}});
  WriteFile("General.002", ScrambledWriter().Section("General-Insult").Comment("only a comment"));
  EXPECT_EQ(Lines("General-Insult"), (std::vector<std::string>{""}));
  CTextGenerator generator;
  EXPECT_EQ(generator.GetText("General-Insult"), kMissingFilesText);
}

TEST_F(StoreTest, StoredLinesAreTestedBeforeUnscrambling) {
  // Stored ";" and "[" lines are dropped whatever they would unscramble to.
  WriteFile("Misc.001", ScrambledWriter()
                            .Section("Misc-Jeerbox-Noun")
                            .Raw(";" + SimpleCrypt("comment-ish"))
                            .Line("kept")
                            .Raw("   ")
                            .Line("   ")  // unscrambles to blanks: a valid line
                            .Raw("\r"));
  EXPECT_EQ(Lines("Misc-Jeerbox-Noun"), (std::vector<std::string>{"kept", "   "}));
  random.Push(PickIndex(1, 2));
  CTextGenerator generator;
  EXPECT_EQ(generator.GetText("Misc-Jeerbox-Noun"), "");
}

TEST_F(StoreTest, ADataLineRightBeforeAHeadKeepsItsCr) {
  WriteFile("Misc.001", ScrambledWriter()
                            .Raw("[" + SimpleCrypt("Misc-A") + "]")
                            .Line("last")
                            .Raw("[" + SimpleCrypt("Misc-B") + "]")
                            .Line("b"));
  const std::vector<std::string> lines = Lines("Misc-A");
  ASSERT_EQ(lines.size(), 1u);
  // The CR was stored, not scrambled: it unscrambles to one extra character.
  EXPECT_EQ(lines[0], "last" + std::string(1, static_cast<char>('\r' ^ 'V')));
}

TEST_F(StoreTest, LastSectionWithAndWithoutFinalLineEnd) {
  WriteFile("Misc.001", ScrambledWriter().Section("Misc-A").Lines({"x", "y"}));
  EXPECT_EQ(Lines("Misc-A"), (std::vector<std::string>{"x", "y"}));
  WriteFile("Misc.001", ScrambledWriter().Section("Misc-A").Lines({"x", "y"}).NoFinalLineEnd());
  EXPECT_EQ(Lines("Misc-A"), (std::vector<std::string>{"x", "y"}));
}

TEST_F(StoreTest, MarkedFilesCountOnlyWhileMarkedTextIsAllowed) {
  WriteLists("Misc.001", {{"Misc-A", {"plain"}}});
  WriteFile("Misc.002",
            ScrambledWriter().Comment("extra " + SimpleCrypt("<XT>")).Section("Misc-A").Line("marked"));
  EXPECT_EQ(Lines("Misc-A"), (std::vector<std::string>{"plain", "marked"}));
  gAllowMarkedText = false;
  EXPECT_EQ(Lines("Misc-A"), (std::vector<std::string>{"plain"}));
}

TEST_F(StoreTest, AnUnreadableFileCountsAsEmptyAndTheScanGoesOn) {
  WriteLists("Misc.001", {{"Misc-A", {"one"}}});
  fs.AddUnreadable(SystemFile("Misc.002"));
  WriteLists("Misc.003", {{"Misc-A", {"three"}}});
  EXPECT_EQ(Lines("Misc-A"), (std::vector<std::string>{"one", "three"}));
}

TEST_F(StoreTest, NineHundredNinetyNineFilesAndNoThousandth) {
  for (int n = 1; n <= 999; ++n) {
    char name[16];
    std::snprintf(name, sizeof name, "Misc.%03d", n);
    WriteLists(name, {{"Misc-Other", {"o"}}});
  }
  WriteLists("Misc.1000", {{"Misc-A", {"never"}}});
  EXPECT_EQ(Lines("Misc-A"), (std::vector<std::string>{""}));
  for (const std::string& path : fs.Touched()) EXPECT_NE(path, SystemFile("Misc.1000"));
}

TEST_F(StoreTest, FileNamesUseThePrefixAndThreeDigits) {
  EXPECT_EQ(CTextGenerator::BuildTextFileName("General-Insult", 1), "C:\\app\\System\\General.001");
  EXPECT_EQ(CTextGenerator::BuildTextFileName("Misc-Jeerbox-Noun", 42), "C:\\app\\System\\Misc.042");
  EXPECT_EQ(CTextGenerator::BuildTextFileName("Misc-Jeerbox-Noun", 999), "C:\\app\\System\\Misc.999");
  EXPECT_EQ(CTextGenerator::BuildTextFileName("NoHyphen", 1), "C:\\app\\System\\NoHyphen.001");
}

TEST_F(StoreTest, AGeneratorReadsEachFileOnceForAllItsKeys) {
  WriteLists("Misc.001", {{"Misc-A", {"a"}}, {"Misc-B", {"b"}}});
  WriteLists("Misc.002", {{"Misc-C", {"c"}}});
  CTextGenerator generator;
  for (const char* key : {"Misc-A", "Misc-B", "Misc-C", "Misc-A"}) generator.GetText(key);
  EXPECT_EQ(fs.Reads(SystemFile("Misc.001")), 1);
  EXPECT_EQ(fs.Reads(SystemFile("Misc.002")), 1);
}

TEST_F(StoreTest, EveryPickReseedsAndDrawsOnceAndIsTrimmed) {
  WriteLists("Misc.001", {{"Misc-A", {"  first  ", "second", "third"}}});
  random.Push(PickIndex(0, 3));
  random.Push(PickIndex(2, 3));
  CTextGenerator generator;
  EXPECT_EQ(generator.GetText("Misc-A"), "first");
  EXPECT_EQ(generator.GetText("Misc-A"), "third");
  EXPECT_EQ(random.Reseeds(), 2);
  EXPECT_EQ(random.Draws(), 2);
}

TEST_F(StoreTest, AllLinesOfAKeyAreEquallyLikely) {
  WriteLists("Misc.001", {{"Misc-A", {"0", "1"}}});
  WriteLists("Misc.002", {{"Misc-A", {"2", "3"}}});
  for (int i = 0; i < 4; ++i) random.Push(PickIndex(i, 4));
  CTextGenerator generator;
  for (int i = 0; i < 4; ++i) EXPECT_EQ(generator.GetText("Misc-A"), std::to_string(i));
}

}  // namespace
}  // namespace jeerbox::testing
