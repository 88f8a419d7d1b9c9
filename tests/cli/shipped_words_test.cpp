// The word lists that ship, as the build packed them into System/, make
// varied sentences whose articles fit. (That they check clean is the
// install check's.)
#include <gtest/gtest.h>

#include <set>

#include "compose/MJeerbox.h"
#include "support/random.h"
#include "wordlist_test_util.h"

namespace jeerbox::testing {
namespace {

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
