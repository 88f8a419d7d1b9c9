// Runs the real jeer binary against program directories the tests write.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"
#include "text/CTextGenerator.h"
#include "wordlist_test_util.h"

namespace jeerbox::testing {
namespace {

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

class JeerTest : public ::testing::Test {
 protected:
  JeerTest() {
    ScrambledWriter misc;
    misc.Section("Misc-Jeerbox-WhoSays")
        .Lines({"Granny", "The vicar"})
        .Section("Misc-Jeerbox-Person")
        .Lines({"you were", "your uncle is"})
        .Section("Misc-Jeerbox-HowBig")
        .Lines({"such a", "a right", "the most"})
        .Section("Misc-Jeerbox-Adjective")
        .Lines({"odious", "soggy", "windy", "limp", "absurd"})
        .Section("Misc-Jeerbox-Noun")
        .Lines({"pudding", "turnip", "eel"})
        .Section("Misc-Jeerbox-AndMore")
        .Lines({"with the wits of", "who smells like"})
        .Section("Misc-Jeerbox-Someone")
        .Lines({"a goat", "<Insult>"});
    ScrambledWriter general;
    general.Section("General-Insult")
        .Lines({"a {damp/dusty} sock", "a kipper"})
        .Section("General-Curse")
        .Line("tab\there\r");
    root.Write("System/Misc.001", misc.Bytes());
    root.Write("System/General.001", general.Bytes());
  }
  std::string Root() const { return " --root " + root.Path(); }

  TempDir root;
};

TEST_F(JeerTest, SayPrintsCountSentencesReproduciblyForASeed) {
  const ToolRun a = RunJeer("say --count 200 --seed 5" + Root());
  const ToolRun b = RunJeer("say --count 200 --seed 5" + Root());
  const ToolRun c = RunJeer("say --count 200 --seed 6" + Root());
  ASSERT_EQ(a.exitCode, 0);
  EXPECT_EQ(a.out, b.out);
  EXPECT_NE(a.out, c.out);
  const std::vector<std::string> lines = SplitLines(a.out);
  ASSERT_EQ(lines.size(), 200u);
  // All four shapes turn up in 200 sentences.
  bool youNoun = false, youInsult = false, said = false, bare = false;
  for (const std::string& s : lines) {
    said |= s.find(" said ") != std::string::npos && s.substr(s.size() - 2) == "!!";
    youInsult |= s.rfind("You ", 0) == 0 && s.size() > 16;
    youNoun |= s == "You eel " || s == "You turnip " || s == "You pudding ";
    bare |= s == "Eel " || s == "Turnip " || s == "Pudding ";
  }
  EXPECT_TRUE(youNoun && youInsult && said && bare) << a.out;
}

TEST_F(JeerTest, UnseededRunsDiffer) {
  EXPECT_NE(RunJeer("say --count 20" + Root()).out, RunJeer("say --count 20" + Root()).out);
}

TEST_F(JeerTest, PickExpandsAndEscapesOnRequest) {
  const ToolRun raw = RunJeer("pick General-Curse" + Root());
  EXPECT_EQ(raw.out, "tab\there\r\n");
  EXPECT_EQ(RunJeer("pick General-Curse --escape" + Root()).out, "tab\\there\\r\n");
  std::set<std::string> seen;
  for (const std::string& line : SplitLines(RunJeer("pick General-Insult -n 100" + Root()).out))
    seen.insert(line);
  EXPECT_EQ(seen, (std::set<std::string>{"a damp sock", "a dusty sock", "a kipper"}));
}

TEST_F(JeerTest, LinesShowsTheStoredListUnexpanded) {
  EXPECT_EQ(RunJeer("lines General-Insult" + Root()).out, "a {damp/dusty} sock\na kipper\n");
  EXPECT_EQ(RunJeer("lines General-Exclaim" + Root()).out, "\n");
}

TEST_F(JeerTest, ARootWithoutSystemGivesTheFixedLineAndSaysWhereItLooked) {
  TempDir empty;
  const ToolRun run = RunJeer("pick Misc-Jeerbox-Noun --root " + empty.Path());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out, std::string(kMissingFilesText) + "\n");
  EXPECT_NE(run.err.find("no System/ in " + empty.Path()), std::string::npos) << run.err;
  EXPECT_EQ(RunJeer("say" + Root()).err, "") << "no hint where the word lists are";
}

TEST_F(JeerTest, UsageErrorsExitTwo) {
  EXPECT_EQ(RunJeer("").exitCode, 2);
  EXPECT_EQ(RunJeer("shout").exitCode, 2);
  EXPECT_EQ(RunJeer("say --count lots").exitCode, 2);
  EXPECT_EQ(RunJeer("say --seed -1").exitCode, 2);
  EXPECT_EQ(RunJeer("pick").exitCode, 2);
  EXPECT_EQ(RunJeer("--help").exitCode, 0);
  EXPECT_NE(RunJeer("say --help").out.find("--seed"), std::string::npos);
}

}  // namespace
}  // namespace jeerbox::testing
