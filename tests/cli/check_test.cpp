// jeer check: what it finds in System/ files the tests write.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/checker.h"
#include "helpers/run_command.h"
#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"

namespace jeerbox::testing {
namespace {

class CheckTest : public ::testing::Test {
 protected:
  // A clean set: every key the program asks for, exactly three adjectives.
  CheckTest() {
    misc.Section("Misc-Jeerbox-WhoSays").Line("Granny").Section("Misc-Jeerbox-Person").Line("you were one");
    misc.Section("Misc-Jeerbox-HowBig").Lines({"great lump of a", "utter"});
    misc.Section("Misc-Jeerbox-Adjective").Lines({"soggy", "odious", "{damp/dusty}"});
    misc.Section("Misc-Jeerbox-Noun").Line("turnip").Section("Misc-Jeerbox-AndMore").Line("who smells of");
    misc.Section("Misc-Jeerbox-Someone").Lines({"<RandomChar>", "a goat"});
    general.Section("General-Insult").Line("a sock of <RandomChar>").Section("General-Curse").Line("Drat");
    general.Section("General-Exclaim").Line("Gosh").Section("General-AutoDealer").Line("a cart seller");
    general.Section("General-Character").Line("a cousin of <AutoDealer>");
  }

  CheckReport Check() {
    root.Write("System/Misc.001", misc.Bytes());
    root.Write("System/General.001", general.Bytes());
    gAppPath = root.Path();
    return CheckSystem();
  }

  static const KeyReport& Key(const CheckReport& report, const std::string& key) {
    return *std::find_if(report.keys.begin(), report.keys.end(),
                         [&](const KeyReport& k) { return k.key == key; });
  }
  // The problems of a key, or of the Misc family for "".
  static std::vector<std::string> Problems(const CheckReport& report, const std::string& key) {
    return key.empty() ? report.families[1].problems : Key(report, key).problems;
  }

  TempDir root;
  ScrambledWriter misc;
  ScrambledWriter general;
};

TEST_F(CheckTest, ACompleteSetIsCleanAndTheCommandSaysSo) {
  EXPECT_EQ(Check().ProblemCount(), 0);
  const CommandRun clean = RunJeer("check --root " + root.Path());
  EXPECT_EQ(clean.exitCode, 0);
  EXPECT_NE(clean.out.find("12 keys, 16 lines in 2 files: clean."), std::string::npos) << clean.out;
  TempDir empty;
  const CommandRun bare = RunJeer("check --root " + empty.Path());
  EXPECT_EQ(bare.exitCode, 1);
  EXPECT_NE(bare.out.find("14 problems."), std::string::npos) << bare.out;
}

TEST_F(CheckTest, FindsWhatTheProgramWillMeet) {
  ScrambledWriter extra;  // marked, and read: Misc.003 is missing
  extra.Marker().Line("stray").Section("Misc-Extra-Key").Line("x").Raw("   ").Blank();
  extra.Raw("[" + SimpleCrypt("Misc-Jeerbox-Noun") + "]").Line("eel");
  root.Write("System/Misc.002", extra.Bytes());
  root.Write("System/Misc.004", extra.Bytes());
  misc.Line("last before the head");  // the Someone section ends here
  misc.Raw("[" + SimpleCrypt("Misc-Jeerbox-Noun2") + "]").Line("y");
  general.Section("General-Insult2").Lines({"a <Pirate> hat", "{a/b", "a}b", "x {} y", "{a{b}c}", "{a/}"});
  general.Section("General-Extra").Line("<Curse>");
  ScrambledWriter loops;
  loops.Section("General-Curse").Line("<Exclaim>").Raw("   ");  // right in front of a head: read, with the CR
  loops.Raw("[" + SimpleCrypt("General-Exclaim") + "]").Line("{oh/<Curse>}");
  root.Write("System/General.002", loops.Bytes());
  const CheckReport report = Check();
  // Rows: key ("" for Misc), finding, told.
  const std::tuple<const char*, const char*, bool> rows[] = {
      {"", "Misc.004 is never read", true},
      {"", "Misc.002: 1 data line in front of the first head", true},
      {"Misc-Jeerbox-Someone", "1 line with a trailing CR", true},
      {"Misc-Extra-Key", "1 stored line of blanks, dropped", true},
      {"Misc-Extra-Key", "never asks for this key", true},
      {"General-Insult2", "token that names no key (<Pirate>)", true},
      {"General-Insult2", "never closed: \"{a/b\"", true},
      {"General-Insult2", "closes no group: \"a}b\"", true},
      {"General-Insult2", "empty brace group", true},
      {"General-Insult2", "inside a brace group", true},
      {"General-Curse", "recurse into itself: General-Curse -> General-Exclaim -> General-Curse", true},
      {"General-Exclaim", "recurse into itself", true},
      {"General-Curse", "of blanks", false},
      {"General-Extra", "recurse", false},  // it reaches a loop but isn't on one
      {"General-Character", "recurse", false}};
  for (const auto& [key, finding, told] : rows) {
    const std::string text = finding;
    const std::vector<std::string> problems = Problems(report, key);
    EXPECT_EQ(std::any_of(problems.begin(), problems.end(),
                          [&](const std::string& p) { return p.find(text) != std::string::npos; }),
              told)
        << key << ": " << text;
  }
  EXPECT_EQ(Problems(report, "General-Insult2").size(), 6u);  // and "never asks for this key"
  EXPECT_EQ(std::make_pair(report.families[1].files, report.families[1].marked), std::make_pair(2, 1));
  EXPECT_EQ(std::make_pair(Key(report, "Misc-Jeerbox-Noun").files, Key(report, "Misc-Jeerbox-Noun").lines),
            std::make_pair(2, 2));
}

TEST_F(CheckTest, MissingKeysAndTooFewAdjectives) {
  misc = ScrambledWriter();
  misc.Section("Misc-Jeerbox-Adjective").Lines({"soggy", "soggy", "soggy-bottomed", "damp"});
  const CheckReport report = Check();
  EXPECT_EQ(Problems(report, "Misc-Jeerbox-Noun").at(0).rfind("no lines", 0), 0u);
  EXPECT_EQ(Key(report, "Misc-Jeerbox-Adjective").distinct, 3);
  EXPECT_NE(Problems(report, "Misc-Jeerbox-Adjective")[0].find("only 2 texts that don't contain one another"),
            std::string::npos);
}

}  // namespace
}  // namespace jeerbox::testing
