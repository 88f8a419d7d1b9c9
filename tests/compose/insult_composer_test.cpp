// The composer: sentence shapes, adjective counts, the tail and the article
// rule, each decided by a scripted draw.
#include "compose/MJeerbox.h"

#include <gtest/gtest.h>

#include "text/text_fixture.h"

namespace jeerbox::testing {
namespace {

TEST(FixArticle, TurnsASeparateLowerCaseAIntoAnBeforeAVowel) {
  // Rows: phrase, next words, result.
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"such a ", "oaf ", "such an "},
      {"  such a   ", "Eel ", "such an "},
      {"such a ", "uncle ", "such an "},
      {"such a ", "toad ", "such a "},
      {"a ", "oaf ", "a "},
      {"such A ", "oaf ", "such A "},
      {"a banana ", "oaf ", "a banana "},
      {"such a ", "", "such a "},
      {"such a ", "\xc9lan ", "such a "},
      {"quite a bit of a ", "imp ", "quite a bit of an "},
  };
  for (const auto& [phrase, next, result] : rows)
    EXPECT_EQ(FixArticle(phrase, next), result) << phrase << next;
}

TEST(Capitalise, UpperFirstLowerTheRest) {
  EXPECT_EQ(Capitalise("mcDUFF "), "Mcduff ");
  EXPECT_EQ(Capitalise(""), "");
  EXPECT_EQ(Capitalise("\xe9T\xc9\xdf"), "\xc9t\xe9\xdf");  // sharp s has no capital here
}

// One line a list but two nouns and five adjectives, so that only the
// scripted draws decide.
class ComposerTest : public TextStoreTest {
 protected:
  ComposerTest() {
    WriteLists("Misc.001", {{"Misc-Jeerbox-WhoSays", {"Granny"}},
                            {"Misc-Jeerbox-Person", {"you were"}},
                            {"Misc-Jeerbox-HowBig", {"such a"}},
                            {"Misc-Jeerbox-Adjective", {"odious", "soggy", "sodden", "dden", "   "}},
                            {"Misc-Jeerbox-Noun", {"pUDDING", "oaf"}},
                            {"Misc-Jeerbox-AndMore", {"with the manners of"}},
                            {"Misc-Jeerbox-Someone", {"a goat"}}});
  }
};

TEST_F(ComposerTest, ShapesCountsTailAndArticleFollowTheDraws) {
  const float noTail = 0.5f, tail = 0.2f;
  const struct {
    const char* name;
    int count;                    // r of the adjective count, 1 to 10
    int noun;                     // pick of two
    std::vector<int> adjectives;  // one pick of five per fetch
    float tail;
    int shape;  // r of the shape, 1 to 20
    const char* expected;
  } rows[] = {
      {"shape 1", 1, 0, {}, tail, 1, "Pudding "},
      {"shape 2, no tail shown", 1, 0, {}, tail, 2, "You pUDDING "},
      {"shape 4", 1, 0, {}, noTail, 4, "You pUDDING "},
      {"shape 5, tail", 1, 0, {}, tail, 5, "You such a pUDDING with the manners of a goat "},
      {"shape 16, tail at 0.39", 1, 0, {}, 0.39f, 16, "You such a pUDDING with the manners of a goat "},
      {"no tail at 0.4", 1, 0, {}, 0.4f, 16, "You such a pUDDING "},
      {"no tail at 0.45", 1, 0, {}, 0.45f, 5, "You such a pUDDING "},
      {"shape 17", 1, 0, {}, tail, 17, "Granny said you were such a pUDDING with the manners of a goat!!"},
      {"shape 20", 1, 0, {}, noTail, 20, "Granny said you were such a pUDDING!!"},
      {"r 3: none, an before the noun", 3, 1, {}, noTail, 5, "You such an oaf "},
      {"r 4: two", 4, 0, {1, 2}, noTail, 5, "You such a soggy, sodden pUDDING "},
      {"r 5: two", 5, 1, {2, 0}, noTail, 5, "You such a sodden, odious oaf "},
      {"r 6: three", 6, 0, {1, 2, 0}, noTail, 5, "You such a soggy, sodden, odious pUDDING "},
      {"r 7: one, an before it", 7, 0, {0}, noTail, 5, "You such an odious pUDDING "},
      {"r 10: one, a before it", 10, 1, {1}, noTail, 5, "You such a soggy oaf "},
      {"inside one chosen", 4, 0, {2, 3, 1}, noTail, 5, "You such a sodden, soggy pUDDING "},
      {"the same again", 4, 0, {1, 1, 0}, noTail, 5, "You such a soggy, odious pUDDING "},
      {"empty first, no comma", 4, 0, {4, 1}, noTail, 5, "You such a soggy pUDDING "},
      {"empty later, refused", 4, 0, {1, 4, 2}, noTail, 5, "You such a soggy, sodden pUDDING "},
  };
  for (const auto& row : rows) {
    // Draws in order: whoSays, person, howBig, the count, the adjectives,
    // noun, andMore, someone, the tail, the shape.
    std::vector<float> draws = {0, 0, 0, (static_cast<float>(row.count) - 0.5f) / 10};
    for (int pick : row.adjectives) draws.push_back(PickIndex(pick, 5));
    draws.insert(draws.end(),
                 {PickIndex(row.noun, 2), 0, 0, row.tail, (static_cast<float>(row.shape) - 0.5f) / 20});
    ScriptedRandom script(draws);
    EXPECT_EQ(GenerateInsult(), row.expected) << row.name;
    EXPECT_EQ(script.Draws(), static_cast<int>(draws.size())) << row.name;
  }
}

TEST_F(ComposerTest, MissingFilesGiveTheFixedLineAndTheAdjectiveLoopEnds) {
  fs.Remove(SystemFile("Misc.001"));
  ScriptedRandom script({0, 0, 0, 0.55f});  // three adjectives wanted, one distinct text
  const std::string missing = kMissingFilesText;
  EXPECT_EQ(GenerateInsult(), "You " + missing + " " + missing + " " + missing + " ");
}

TEST_F(ComposerTest, EachSentenceReadsTheFilesAnew) {
  ScriptedRandom script({0, 0, 0, 0, 0, 0, 0, 0, 0.5f / 20});
  EXPECT_EQ(GenerateInsult(), "Pudding ");
  WriteLists("Misc.001", {{"Misc-Jeerbox-Noun", {"walrus"}}});
  EXPECT_EQ(GenerateInsult(), "Walrus ");
}

}  // namespace
}  // namespace jeerbox::testing
