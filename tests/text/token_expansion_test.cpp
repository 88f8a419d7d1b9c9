#include <gtest/gtest.h>

#include "text/CTextUtils.h"
#include "text/shorthand.h"
#include "text/text_fixture.h"

namespace jeerbox::testing {
namespace {

class TokenTest : public TextStoreTest {
 protected:
  static std::string Game(const std::string& text, const std::string& city = "",
                          const std::string& player = "") {
    return CTextUtils::ParseGameTokens(text, city, player, "", "");
  }
};

TEST_F(TokenTest, PlainTextPassesUnchangedAndDrawsNothing) {
  EXPECT_EQ(Game("no tokens at all"), "no tokens at all");
  EXPECT_EQ(CTextUtils::ParseInlineTokens("a } b"), "a } b");
  EXPECT_EQ(random.Draws(), 0);
}

TEST_F(TokenTest, UnknownTokensStayAndEmptyValuesKeepTheirBlanks) {
  EXPECT_EQ(Game("x <Nobody> y"), "x <Nobody> y");
  EXPECT_EQ(Game("in <City> now"), "in  now");
  EXPECT_EQ(Game("<city> is case sensitive"), "<city> is case sensitive");
}

TEST_F(TokenTest, ATokenIsLookedUpOnceForAllItsOccurrences) {
  WriteLists("General.001", {{"General-Insult", {"turnip", "parsnip"}}});
  random.Push(PickIndex(1, 2));
  random.Push(PickIndex(0, 2));
  EXPECT_EQ(Game("<Insult> and <Insult>"), "parsnip and parsnip");
  EXPECT_EQ(random.Draws(), 1);
}

TEST_F(TokenTest, AValueIsExpandedByTheTokensBelowItButNotAbove) {
  WriteLists("General.001", {{"General-Insult", {"a <Curse> b <RandomChar>"}},
                             {"General-Curse", {"blast"}},
                             {"General-Character", {"Pip"}}});
  // The fetched insult expands its own tokens in its own pick.
  EXPECT_EQ(Game("<Insult>"), "a blast b Pip");
  // City is handled before Insult, so a City value's <Insult> expands...
  EXPECT_EQ(Game("<City>", "<Curse>"), "blast");
  // ...but a token above the one that brought it in does not.
  EXPECT_EQ(Game("<Player>", "Paris", "<City>"), "<City>");
}

TEST_F(TokenTest, AMissingFamilyBringsTheFixedText) {
  EXPECT_EQ(Game("Oh <Exclaim>"), std::string("Oh ") + kMissingFilesText);
}

// Lists written to explode: tokens that fetch themselves, replacements and
// lines past the length bound. A pick ends with a bounded text, its choices
// resolved within the work it may spend, and all its lookups read the
// family once.
TEST_F(TokenTest, ExpansionStaysWithinItsBounds) {
  std::string many;
  for (int i = 0; i < 1000; ++i) many += "<Insult>";
  const struct {
    const char* name;
    std::string line;    // the pick's, a General-Curse line
    std::string insult;  // what <Insult> fetches
    int reads;           // of General.001: the pick's, and its lookups'
  } rows[] = {
      {"self-fetching", "<Insult>", "<Insult> <Insult> <Curse>", 2},
      {"a thousand long values", "{a/b}" + many, std::string(32000, 'x'), 2},
      {"a long line", std::string(40000, 'x') + "{z}", "", 1},
  };
  for (const auto& row : rows) {
    WriteLists("General.001", {{"General-Curse", {row.line}}, {"General-Insult", {row.insult}}});
    fs.ClearLog();
    const std::string text = CTextGenerator().GetText("General-Curse");
    EXPECT_EQ(text.find_first_of("<{"), std::string::npos) << row.name;
    EXPECT_LE(text.size(), kMaxTextLength) << row.name;
    EXPECT_EQ(fs.Reads(SystemFile("General.001")), row.reads) << row.name;
  }
}

TEST_F(TokenTest, TokensNestAndFetchNoFurtherThanTheirBounds) {
  WriteLists("General.001", {{"General-Insult", {"a<Insult>"}}});
  EXPECT_EQ(Game("<Insult>"), std::string(kMaxTokenDepth, 'a'));
  const std::string all = "<RandomChar><Insult><Curse><Exclaim><AutoDealer>";
  WriteLists("General.001", {{"General-Character", {all}},
                             {"General-Insult", {all}},
                             {"General-Curse", {all}},
                             {"General-Exclaim", {all}},
                             {"General-AutoDealer", {all}}});
  const int before = random.Draws();
  Game("<Insult>");
  EXPECT_EQ(random.Draws() - before, kMaxTokenLookups);  // one pick, one draw, per lookup
}

TEST_F(TokenTest, SpentWorkLeavesTheRestOfTheChoices) {
  std::string text(25000, 'x');
  for (int i = 0; i < 1000; ++i) text += "{" + std::to_string(i) + "}";
  EXPECT_NE(CTextUtils::ParseInlineTokens(text).find('{'), std::string::npos);
  EXPECT_LT(random.Draws(), 1000);
}

TEST_F(TokenTest, AChoicePicksOneOptionAsItStands) {
  random.Push(PickIndex(1, 3));
  EXPECT_EQ(CTextUtils::ParseInlineTokens("a {red/ green /blue} hat"), "a  green  hat");
  random.Push(0.0f);
  EXPECT_EQ(CTextUtils::ParseInlineTokens("{only}!"), "only!");
  random.Push(PickIndex(1, 2));
  EXPECT_EQ(CTextUtils::ParseInlineTokens("x{word/}y"), "xy");
  random.Push(PickIndex(0, 2));
  EXPECT_EQ(CTextUtils::ParseInlineTokens("{/}"), "");
}

TEST_F(TokenTest, IdenticalChoicesResolveAlikeInOnePass) {
  random.Push(PickIndex(0, 2));
  random.Push(PickIndex(1, 2));
  EXPECT_EQ(CTextUtils::ParseInlineTokens("{a/b} {a/b} {c/d}"), "a a d");
  EXPECT_EQ(random.Draws(), 2);
}

TEST_F(TokenTest, NestingIsNotAStructure) {
  // The group is "{x/{y}": choosing "x" leaves the "}" behind.
  random.Push(PickIndex(0, 2));
  EXPECT_EQ(CTextUtils::ParseInlineTokens("{x/{y}}"), "x}");
  // Choosing "{y" brings a "{" in: the next pass takes "{y}" as a group.
  random.Push(PickIndex(1, 2));
  random.Push(0.0f);
  EXPECT_EQ(CTextUtils::ParseInlineTokens("{x/{y}}"), "y");
}

TEST_F(TokenTest, AThousandPassesAndNoMore) {
  std::string text;
  for (int i = 0; i < 1001; ++i) text += "{" + std::to_string(i) + "}";
  const std::string resolved = CTextUtils::ParseInlineTokens(text);
  EXPECT_EQ(resolved.substr(resolved.size() - 7), "9{1000}");
  EXPECT_EQ(random.Draws(), 1000);
  text.resize(text.size() - 6);  // exactly 1000 choices
  EXPECT_EQ(CTextUtils::ParseInlineTokens(text).find('{'), std::string::npos);
}

TEST_F(TokenTest, MalformedChoicesNeverStopOrHang) {
  EXPECT_EQ(CTextUtils::ParseInlineTokens("open { never closed"), "open { never closed");
  EXPECT_EQ(CTextUtils::ParseInlineTokens("} then {a}"), "} then a");
  EXPECT_EQ(CTextUtils::ParseInlineTokens("empty {} braces"), "empty  braces");
  EXPECT_EQ(CTextUtils::ParseInlineTokens("{a/b} then {"), "a then {");
}

TEST_F(TokenTest, ATokenInsideAnOptionIsFetchedBeforeTheChoice) {
  WriteLists("General.001", {{"General-Curse", {"x/y}"}}});
  WriteLists("Misc.001", {{"Misc-A", {"{<Curse>/z}"}}});
  random.Push(0.0f);   // the outer pick
  random.Push(0.0f);   // the curse's pick
  random.Push(0.75f);  // the choice: second of "{x/y}"
  CTextGenerator generator;
  // The fetched "/" and "}" count like written ones: the group is "{x/y}".
  EXPECT_EQ(generator.GetText("Misc-A"), "y/z}");
}

}  // namespace
}  // namespace jeerbox::testing
