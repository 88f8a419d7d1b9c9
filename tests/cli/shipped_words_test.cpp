// The word lists that ship, as the build packed them into System/: they
// check clean and make varied sentences whose articles fit.
#include <gtest/gtest.h>

#include <set>

#include "cli/checker.h"
#include "compose/MJeerbox.h"
#include "support/random.h"
#include "wordlist_test_util.h"

namespace jeerbox::testing {
namespace {

TEST(ShippedWords, CheckCleanWithTheExtraSetMarked) {
  gAppPath = PROGRAM_DIR;
  const CheckReport report = CheckSystem();
  for (const KeyReport& key : report.keys)
    for (const std::string& problem : key.problems) ADD_FAILURE() << key.key << ": " << problem;
  EXPECT_EQ(report.ProblemCount(), 0);
  EXPECT_EQ(report.families[1].family + " " + std::to_string(report.families[1].marked), "Misc 1");
}

// "a" as a word of its own in front of a, e, i or o is wrong in any
// sentence (the rule only mends HowBig); "a u..." may be right.
TEST(ShippedWords, SentencesAreVariedAndTheirArticlesFit) {
  gAppPath = PROGRAM_DIR;
  SeedRandom(1);
  std::set<std::string> distinct;
  for (int i = 0; i < 2000; ++i) {
    const std::string sentence = " " + GenerateInsult();
    EXPECT_EQ(sentence.find("##"), std::string::npos) << sentence;
    for (const char before : {' ', '"'})
      for (const char vowel : std::string("aeioAEIO"))
        EXPECT_EQ(sentence.find(std::string{before, 'a', ' ', vowel}), std::string::npos) << sentence;
    distinct.insert(sentence);
  }
  EXPECT_GE(distinct.size(), 1960u);
}

}  // namespace
}  // namespace jeerbox::testing
