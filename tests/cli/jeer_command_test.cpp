// Runs the real jeer binary against program directories the tests write.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <set>
#include <sstream>

#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"
#include "text/CTextGenerator.h"

namespace jeerbox::testing {
namespace {

struct JeerRun {
  int exitCode;
  std::string out;
  std::string err;
};

JeerRun Jeer(const std::string& args) {
  TempDir scratch;
  const std::string command = std::string(JEER_PATH) + " " + args + " 2>" + scratch.Path() + "/err";
  FILE* pipe = popen(command.c_str(), "r");
  JeerRun run{-1, "", ""};
  std::array<char, 4096> buffer{};
  size_t n;
  while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0) run.out.append(buffer.data(), n);
  const int status = pclose(pipe);
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::ifstream err(scratch.Path() + "/err");
  run.err.assign(std::istreambuf_iterator<char>(err), std::istreambuf_iterator<char>());
  return run;
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
  const JeerRun a = Jeer("say --count 200 --seed 5" + Root());
  const JeerRun b = Jeer("say --count 200 --seed 5" + Root());
  const JeerRun c = Jeer("say --count 200 --seed 6" + Root());
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
  EXPECT_NE(Jeer("say --count 20" + Root()).out, Jeer("say --count 20" + Root()).out);
}

TEST_F(JeerTest, PickExpandsAndEscapesOnRequest) {
  const JeerRun raw = Jeer("pick General-Curse" + Root());
  EXPECT_EQ(raw.out, "tab\there\r\n");
  EXPECT_EQ(Jeer("pick General-Curse --escape" + Root()).out, "tab\\there\\r\n");
  std::set<std::string> seen;
  for (const std::string& line : SplitLines(Jeer("pick General-Insult -n 100" + Root()).out))
    seen.insert(line);
  EXPECT_EQ(seen, (std::set<std::string>{"a damp sock", "a dusty sock", "a kipper"}));
}

TEST_F(JeerTest, LinesShowsTheStoredListUnexpanded) {
  EXPECT_EQ(Jeer("lines General-Insult" + Root()).out, "a {damp/dusty} sock\na kipper\n");
  EXPECT_EQ(Jeer("lines General-Exclaim" + Root()).out, "\n");
}

TEST_F(JeerTest, ARootWithoutSystemGivesTheFixedLineAndSaysWhereItLooked) {
  TempDir empty;
  const JeerRun run = Jeer("pick Misc-Jeerbox-Noun --root " + empty.Path());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out, std::string(kMissingFilesText) + "\n");
  EXPECT_NE(run.err.find("no System/ in " + empty.Path()), std::string::npos) << run.err;
  EXPECT_EQ(Jeer("say" + Root()).err, "") << "no hint where the word lists are";
}

TEST_F(JeerTest, UsageErrorsExitTwo) {
  EXPECT_EQ(Jeer("").exitCode, 2);
  EXPECT_EQ(Jeer("shout").exitCode, 2);
  EXPECT_EQ(Jeer("say --count lots").exitCode, 2);
  EXPECT_EQ(Jeer("say --seed -1").exitCode, 2);
  EXPECT_EQ(Jeer("pick").exitCode, 2);
  EXPECT_EQ(Jeer("--help").exitCode, 0);
  EXPECT_NE(Jeer("say --help").out.find("--seed"), std::string::npos);
}

}  // namespace
}  // namespace jeerbox::testing
