// Runs the real jeer binary against program directories the tests write,
// and against the shipped word lists beside it.
#include <gtest/gtest.h>

#include <set>

#include "cli/escape.h"
#include "helpers/run_command.h"
#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"

namespace jeerbox::testing {
namespace {

TEST(EscapeBytes, ShowsControlAndHighBytesAsEscapes) {
  const std::pair<std::string, const char*> rows[] = {
      {"plain text ~!", "plain text ~!"},
      {"a\\b", "a\\\\b"},
      {"\r\n\t", "\\r\\n\\t"},
      {std::string("\0\x1f\x7f\x80\xff", 5), "\\x00\\x1f\\x7f\\x80\\xff"}};
  for (const auto& [text, shown] : rows) EXPECT_EQ(EscapeBytes(text), shown);
}

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

class JeerTest : public ::testing::Test {
 protected:
  JeerTest() {
    ScrambledWriter misc, general;
    misc.Sections({{"Misc-Jeerbox-WhoSays", {"Granny", "The vicar"}},
                   {"Misc-Jeerbox-Person", {"one"}},
                   {"Misc-Jeerbox-HowBig", {"such a", "a right"}},
                   {"Misc-Jeerbox-Adjective", {"odious", "soggy", "windy", "limp"}},
                   {"Misc-Jeerbox-Noun", {"pudding", "eel"}},
                   {"Misc-Jeerbox-AndMore", {"who smells like"}},
                   {"Misc-Jeerbox-Someone", {"<Insult>"}}});
    general.Sections(
        {{"General-Insult", {"a {damp/dusty} sock", "a kipper"}}, {"General-Curse", {"tab\there\r"}}});
    root.Write("System/Misc.001", misc.Bytes());
    root.Write("System/General.001", general.Bytes());
  }
  std::string Root() const { return " --root " + root.Path(); }

  TempDir root;
};

TEST_F(JeerTest, SayPrintsCountSentencesTheSameForTheSameSeed) {
  const CommandRun seeded = RunJeer("say --count 20 --seed 0" + Root());
  ASSERT_EQ(seeded.exitCode, 0);
  EXPECT_EQ(SplitLines(seeded.out).size(), 20u);
  EXPECT_EQ(RunJeer("say --count 20 --seed 0" + Root()).out, seeded.out);
  EXPECT_NE(RunJeer("say --count 20 --seed 1" + Root()).out, seeded.out);
  EXPECT_NE(RunJeer("say --count 20" + Root()).out, RunJeer("say --count 20" + Root()).out);
}

TEST_F(JeerTest, PickExpandsLinesListsThemStoredAndEscapesOnRequest) {
  EXPECT_EQ(RunJeer("pick General-Curse" + Root()).out, "tab\there\r\n");
  EXPECT_EQ(RunJeer("pick General-Curse --escape" + Root()).out, "tab\\there\\r\n");
  const std::vector<std::string> picks =
      SplitLines(RunJeer("pick General-Insult -n 60 --seed 1" + Root()).out);
  EXPECT_EQ(std::set<std::string>(picks.begin(), picks.end()),
            (std::set<std::string>{"a damp sock", "a dusty sock", "a kipper"}));
  EXPECT_EQ(RunJeer("lines General-Insult" + Root()).out, "a {damp/dusty} sock\na kipper\n");
  EXPECT_EQ(RunJeer("lines General-Exclaim" + Root()).out, "\n");
}

// The shipped lists, beside jeer: varied sentences, and no "a" as a word of
// its own in front of a, e, i or o (the article rule mends HowBig only; "a
// u..." may be right).
TEST(ShippedWords, SentencesAreVariedAndTheirArticlesFit) {
  const std::vector<std::string> sentences = SplitLines(RunJeer("say --count 2000 --seed 1").out);
  ASSERT_EQ(sentences.size(), 2000u);
  for (const std::string& text : sentences) {
    const std::string sentence = " " + text;
    EXPECT_EQ(sentence.find("##"), std::string::npos) << sentence;
    for (const char before : {' ', '"'})
      for (const char vowel : std::string("aeioAEIO"))
        EXPECT_EQ(sentence.find(std::string{before, 'a', ' ', vowel}), std::string::npos) << sentence;
  }
  EXPECT_GE(std::set<std::string>(sentences.begin(), sentences.end()).size(), 1960u);
}

TEST_F(JeerTest, ARootWithoutSystemGivesTheFixedLineAndSaysWhereItLooked) {
  TempDir empty;
  const CommandRun run = RunJeer("pick Misc-Jeerbox-Noun --root " + empty.Path() + "/");
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out, std::string(kMissingFilesText) + "\n");
  EXPECT_NE(run.err.find("no System/ in " + empty.Path() + ","), std::string::npos) << run.err;
  EXPECT_NE(RunJeer("say --root /").err.find("no System/ in /,"), std::string::npos);
  EXPECT_EQ(RunJeer("say" + Root()).err, "") << "no hint where the word lists are";
}

TEST_F(JeerTest, ExitCodesTellUsageFromProblems) {
  TempDir empty;
  for (const std::string& args :
       std::vector<std::string>{"", "shout", "say --count lots", "say --seed -1",
                                "say --count 18446744073709551616", "pick", "pack", "pack " + empty.Path()})
    EXPECT_EQ(RunJeer(args).exitCode, 2) << args;
  for (const std::string& args :
       {"pack " + empty.Path() + " " + root.Path(), "unpack /nonexistent/dir " + empty.Path()})
    EXPECT_EQ(RunJeer(args).exitCode, 1) << args;
  EXPECT_EQ(RunJeer("--help").exitCode, 0);
}

}  // namespace
}  // namespace jeerbox::testing
