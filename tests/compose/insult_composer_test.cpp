#include "compose/MJeerbox.h"

#include <gtest/gtest.h>

#include "text/text_fixture.h"

namespace jeerbox::testing {
namespace {

TEST(FixArticle, TurnsASeparateLowerCaseAIntoAnBeforeAVowel) {
  struct Case {
    const char* phrase;
    const char* next;
    const char* result;
  } cases[] = {
      {"such a ", "oaf ", "such an "},
      {"  such a   ", "Eel ", "such an "},  // trimmed; upper-case vowel counts
      {"such a ", "toad ", "such a "},
      {"a ", "oaf ", "a "},  // no blank in front of the a
      {"such A ", "oaf ", "such A "},
      {"quite a bit of a ", "uncle ", "quite a bit of an "},
      {"a banana ", "oaf ", "a banana "},
      {"such a ", "", "such a "},
      {"such a ", "\xc9lan ", "such a "},  // only a, e, i, o, u count
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.phrase) + "|" + c.next);
    EXPECT_EQ(FixArticle(c.phrase, c.next), c.result);
  }
}

TEST(Capitalise, UpperFirstLowerTheRest) {
  EXPECT_EQ(Capitalise("mcDUFF "), "Mcduff ");
  EXPECT_EQ(Capitalise(""), "");
  EXPECT_EQ(Capitalise("\xe9T\xc9"), "\xc9t\xe9");
}

// Seven one-line lists, so only the composer's own draws decide.
class ComposerTest : public TextStoreTest {
 protected:
  ComposerTest() {
    WriteLists("Misc.001", {{"Misc-Jeerbox-WhoSays", {"Granny"}},
                            {"Misc-Jeerbox-Person", {"you were"}},
                            {"Misc-Jeerbox-HowBig", {"such a"}},
                            {"Misc-Jeerbox-Adjective", {"odious", "soggy", "sodden"}},
                            {"Misc-Jeerbox-Noun", {"pUDDING"}},
                            {"Misc-Jeerbox-AndMore", {"with the manners of"}},
                            {"Misc-Jeerbox-Someone", {"a goat"}}});
  }

  // Draws in order: whoSays, person, howBig, the adjective count, one per
  // adjective fetch, noun, andMore, someone, the tail chance, the shape.
  std::string Compose(float count, std::vector<float> adjectiveDraws, float tail, float shape) {
    std::vector<float> draws = {0, 0, 0, count};
    draws.insert(draws.end(), adjectiveDraws.begin(), adjectiveDraws.end());
    draws.insert(draws.end(), {0, 0, 0, tail, shape});
    for (float d : draws) random.Push(d);
    const int before = random.Draws();
    std::string sentence = GenerateInsult();
    EXPECT_EQ(random.Draws() - before, static_cast<int>(draws.size()));
    return sentence;
  }

  static constexpr float kNoTail = 0.5f, kTail = 0.2f;
  static float Count(int r) { return (static_cast<float>(r) - 0.5f) / 10; }
  static float Shape(int r) { return (static_cast<float>(r) - 0.5f) / 20; }
  static float Adjective(int i) { return PickIndex(i, 3); }
};

TEST_F(ComposerTest, FourShapes) {
  EXPECT_EQ(Compose(Count(1), {}, kNoTail, Shape(1)), "Pudding ");
  EXPECT_EQ(Compose(Count(1), {}, kNoTail, Shape(4)), "You pUDDING ");
  EXPECT_EQ(Compose(Count(1), {}, kNoTail, Shape(16)), "You such a pUDDING ");
  EXPECT_EQ(Compose(Count(1), {}, kTail, Shape(17)),
            "Granny said you were such a pUDDING with the manners of a goat!!");
}

TEST_F(ComposerTest, AdjectiveCountsAndCommas) {
  EXPECT_EQ(Compose(Count(7), {Adjective(1)}, kNoTail, Shape(5)), "You such a soggy pUDDING ");
  EXPECT_EQ(Compose(Count(4), {Adjective(1), Adjective(2)}, kNoTail, Shape(5)),
            "You such a soggy, sodden pUDDING ");
  EXPECT_EQ(Compose(Count(6), {Adjective(1), Adjective(2), Adjective(0)}, kNoTail, Shape(5)),
            "You such a soggy, sodden, odious pUDDING ");
}

TEST_F(ComposerTest, TheArticleLooksAtTheFirstAdjectiveOrTheNoun) {
  EXPECT_EQ(Compose(Count(10), {Adjective(0)}, kNoTail, Shape(5)), "You such an odious pUDDING ");
}

TEST_F(ComposerTest, TheTailShowsOnlyInShapesThatUseTheInsult) {
  EXPECT_EQ(Compose(Count(1), {}, kTail, Shape(2)), "You pUDDING ");
  EXPECT_EQ(Compose(Count(1), {}, kTail, Shape(5)), "You such a pUDDING with the manners of a goat ");
}

TEST_F(ComposerTest, AnAdjectiveInsideOneAlreadyChosenIsFetchedAgain) {
  WriteLists("Misc.002", {{"Misc-Jeerbox-Adjective", {"dden"}}});  // now 4 adjectives
  EXPECT_EQ(Compose(Count(4), {PickIndex(2, 4), PickIndex(3, 4), PickIndex(1, 4)}, kNoTail, Shape(5)),
            "You such a sodden, soggy pUDDING ");
}

TEST_F(ComposerTest, MissingFilesGiveTheFixedLineAndTheLoopEnds) {
  fs.Remove(SystemFile("Misc.001"));
  random.Push(0);
  random.Push(0);
  random.Push(0);
  random.Push(Count(6));  // three adjectives wanted, only one distinct text exists
  const std::string sentence = GenerateInsult();
  const std::string missing = kMissingFilesText;
  EXPECT_EQ(sentence, "You " + missing + " " + missing + " " + missing + " ");
}

TEST_F(ComposerTest, AFileEditedBetweenTwoSentencesIsSeenByTheSecond) {
  EXPECT_EQ(Compose(Count(1), {}, kNoTail, Shape(2)), "You pUDDING ");
  WriteLists("Misc.001", {{"Misc-Jeerbox-Noun", {"walrus"}}});
  EXPECT_EQ(Compose(Count(1), {}, kNoTail, Shape(2)), "You walrus ");
}

TEST(ShorthandFunctions, EachFetchesItsOwnGeneralKey) {
  FakeFileSystem fs;
  gAppPath = "C:\\app";
  ScrambledWriter writer;
  writer.Section("General-Character")
      .Line("Pip")
      .Section("General-Insult")
      .Line("toad")
      .Section("General-Curse")
      .Line("drat")
      .Section("General-Exclaim")
      .Line("gadzooks")
      .Section("General-AutoDealer")
      .Line("Honest Ron");
  fs.Write("C:\\app\\System\\General.001", writer.Bytes());
  EXPECT_EQ(RandomCharacter(), "Pip");
  EXPECT_EQ(RandomInsult(), "toad");
  EXPECT_EQ(RandomCurse(), "drat");
  EXPECT_EQ(RandomExclaim(), "gadzooks");
  EXPECT_EQ(RandomAutoDealer(), "Honest Ron");
}

}  // namespace
}  // namespace jeerbox::testing
