// jeer check: what it finds in System/ files the tests write.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/checker.h"
#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"
#include "wordlist_test_util.h"

namespace jeerbox::testing {
namespace {

class CheckTest : public ::testing::Test {
 protected:
  // A clean set: every key the program asks for, a few lines each.
  CheckTest() {
    misc.Section("Misc-Jeerbox-WhoSays")
        .Line("Granny")
        .Section("Misc-Jeerbox-Person")
        .Line("you were one")
        .Section("Misc-Jeerbox-HowBig")
        .Lines({"great lump of a", "utter"})
        .Section("Misc-Jeerbox-Adjective")
        .Lines({"soggy", "odious", "{damp/dusty}"})
        .Section("Misc-Jeerbox-Noun")
        .Line("turnip")
        .Section("Misc-Jeerbox-AndMore")
        .Line("who smells of")
        .Section("Misc-Jeerbox-Someone")
        .Lines({"<RandomChar>", "a goat"});
    general.Section("General-Insult")
        .Line("a sock of <RandomChar>")
        .Section("General-Curse")
        .Line("Drat")
        .Section("General-Exclaim")
        .Line("Gosh")
        .Section("General-AutoDealer")
        .Line("a cart seller")
        .Section("General-Character")
        .Line("a cousin of <AutoDealer>");
  }

  CheckReport Check() {
    root.Write("System/Misc.001", misc.Bytes());
    root.Write("System/General.001", general.Bytes());
    gAppPath = root.Path();
    gAllowMarkedText = true;
    return CheckSystem();
  }

  static const KeyReport& Key(const CheckReport& report, const std::string& key) {
    const auto it = std::find_if(report.keys.begin(), report.keys.end(),
                                 [&](const KeyReport& k) { return k.key == key; });
    EXPECT_NE(it, report.keys.end()) << key;
    return *it;
  }

  static bool Mentions(const std::vector<std::string>& problems, const std::string& text) {
    return std::any_of(problems.begin(), problems.end(),
                       [&](const std::string& p) { return p.find(text) != std::string::npos; });
  }

  TempDir root;
  ScrambledWriter misc;
  ScrambledWriter general;
};

TEST_F(CheckTest, ACompleteSetIsClean) {
  const CheckReport report = Check();
  EXPECT_EQ(report.ProblemCount(), 0);
  ASSERT_EQ(report.keys.size(), 12u);
  EXPECT_EQ(Key(report, "Misc-Jeerbox-Adjective").lines, 3);
  EXPECT_EQ(Key(report, "Misc-Jeerbox-Adjective").files, 1);
  ASSERT_EQ(report.families.size(), 2u);
  EXPECT_EQ(report.families[1].family, "Misc");
  EXPECT_EQ(report.families[1].files, 1);
}

TEST_F(CheckTest, CountsFilesAndMarkedFilesUpToTheGap) {
  ScrambledWriter extra;
  extra.Marker().Section("Misc-Jeerbox-Noun").Line("eel");
  root.Write("System/Misc.002", extra.Bytes());
  root.Write("System/Misc.004", extra.Bytes());
  const CheckReport report = Check();
  EXPECT_EQ(report.families[1].files, 2);
  EXPECT_EQ(report.families[1].marked, 1);
  EXPECT_EQ(Key(report, "Misc-Jeerbox-Noun").files, 2);
  EXPECT_EQ(Key(report, "Misc-Jeerbox-Noun").lines, 2);
  EXPECT_TRUE(Mentions(report.families[1].problems, "Misc.004 is never read"));
  EXPECT_EQ(report.ProblemCount(), 1);
}

TEST_F(CheckTest, TrailingCrDroppedLinesAndLinesOutsideSections) {
  ScrambledWriter file;
  file.Line("stray")
      .Section("Misc-Extra-Key")
      .Line("x")
      .Raw("   ")
      .Blank()
      .Raw("[" + SimpleCrypt("Misc-Jeerbox-Noun") + "]")
      .Line("eel");
  misc.Line("last before the head");  // the Someone section ends here
  misc.Raw("[" + SimpleCrypt("Misc-Jeerbox-Noun2") + "]").Line("y");
  root.Write("System/Misc.002", file.Bytes());
  const CheckReport report = Check();
  EXPECT_TRUE(Mentions(Key(report, "Misc-Jeerbox-Someone").problems, "1 line with a trailing CR"));
  EXPECT_TRUE(Mentions(Key(report, "Misc-Extra-Key").problems, "1 stored line of blanks, dropped"));
  EXPECT_TRUE(Mentions(Key(report, "Misc-Extra-Key").problems, "never asks for this key"));
  EXPECT_TRUE(Mentions(report.families[1].problems, "Misc.002: 1 data line in front of the first head"));
}

TEST_F(CheckTest, TokensAndBraces) {
  general.Section("General-Insult2").Lines({"a <Pirate> hat", "{a/b", "a}b", "x {} y", "{a{b}c}", "{a/}"});
  const CheckReport report = Check();
  const std::vector<std::string>& problems = Key(report, "General-Insult2").problems;
  EXPECT_TRUE(Mentions(problems, "token that names no key (<Pirate>)"));
  EXPECT_TRUE(Mentions(problems, "never closed: \"{a/b\""));
  EXPECT_TRUE(Mentions(problems, "closes no group: \"a}b\""));
  EXPECT_TRUE(Mentions(problems, "empty brace group"));
  EXPECT_TRUE(Mentions(problems, "inside a brace group"));
  EXPECT_EQ(problems.size(), 6u);  // the five above and "never asks for this key"
}

TEST_F(CheckTest, TokensThatComeBackToTheirOwnKey) {
  general.Section("General-Extra").Line("<Curse>");
  ScrambledWriter loops;
  loops.Section("General-Curse").Line("<Exclaim>").Section("General-Exclaim").Line("{oh/<Curse>}");
  root.Write("System/General.002", loops.Bytes());
  const CheckReport report = Check();
  EXPECT_TRUE(Mentions(Key(report, "General-Curse").problems,
                       "recurse into itself: General-Curse -> General-Exclaim -> General-Curse"));
  EXPECT_TRUE(Mentions(Key(report, "General-Exclaim").problems, "recurse into itself"));
  // It reaches a loop but isn't on one.
  EXPECT_FALSE(Mentions(Key(report, "General-Extra").problems, "recurse"));
  EXPECT_FALSE(Mentions(Key(report, "General-Character").problems, "recurse"));
}

TEST_F(CheckTest, MissingKeysAndTooFewAdjectives) {
  misc = ScrambledWriter();
  misc.Section("Misc-Jeerbox-Adjective").Lines({"soggy", "soggy", "soggy-bottomed", "damp"});
  const CheckReport report = Check();
  EXPECT_TRUE(Mentions(Key(report, "Misc-Jeerbox-Noun").problems, "no lines"));
  const KeyReport& adjectives = Key(report, "Misc-Jeerbox-Adjective");
  EXPECT_EQ(adjectives.distinct, 3);
  EXPECT_TRUE(Mentions(adjectives.problems, "only 2 texts that don't contain one another"));
}

TEST_F(CheckTest, TheCommandPrintsATableAndExitsByTheFindings) {
  Check();
  const ToolRun clean = RunJeer("check --root " + root.Path());
  EXPECT_EQ(clean.exitCode, 0);
  EXPECT_NE(clean.out.find("Misc-Jeerbox-Adjective      1       3         3  -"), std::string::npos)
      << clean.out;
  EXPECT_NE(clean.out.find("12 keys, 16 lines in 2 files: clean."), std::string::npos) << clean.out;
  TempDir empty;
  const ToolRun bare = RunJeer("check --root " + empty.Path());
  EXPECT_EQ(bare.exitCode, 1);
  EXPECT_NE(bare.out.find("14 problems."), std::string::npos) << bare.out;
}

}  // namespace
}  // namespace jeerbox::testing
