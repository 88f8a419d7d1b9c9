// The two template passes: named tokens, then brace choices, and the bounds
// that keep a pick small whatever its lines hold.
#include <gtest/gtest.h>

#include <array>

#include "text/CTextUtils.h"
#include "text/shorthand.h"
#include "text/text_fixture.h"

namespace jeerbox::testing {
namespace {

using TokenTest = TextStoreTest;

const char* const kShorthandKeys[] = {"General-Character", "General-Insult", "General-Curse",
                                      "General-Exclaim", "General-AutoDealer"};

// Five lines a key ("Ch0".."Ch4", "In0"...), so each pick shows which draw it took.
TEST_F(TokenTest, NamedTokensAreReplacedInTableOrderEachLookedUpOnce) {
  KeyLines lists;
  for (const char* key : kShorthandKeys) {
    lists.push_back({key, {}});
    for (int i = 0; i < 5; ++i) lists.back().second.push_back(std::string(key + 8, 2) + std::to_string(i));
  }
  WriteLists("General.001", lists);
  // Text, then city, player, weapon and rating, the picks of the lookups, the result.
  using Row = std::tuple<std::string, std::array<const char*, 4>, std::vector<int>, const char*>;
  const Row rows[] = {{"no tokens at all", {"", "", "", ""}, {}, "no tokens at all"},
                      {"x <Nobody> <city> y", {"", "", "", ""}, {}, "x <Nobody> <city> y"},
                      {"in <City> now", {"", "", "", ""}, {}, "in  now"},
                      {"<AutoDealer> <Exclaim> <Curse> <Insult> <RandomChar>",
                       {"", "", "", ""},
                       {0, 1, 2, 3, 4},
                       "Au4 Ex3 Cu2 In1 Ch0"},
                      {"<Insult> and <Insult>", {"", "", "", ""}, {3}, "In3 and In3"},
                      // A value is subject to the tokens below its own, not to those above.
                      {"<City>", {"<Player>", "P", "", ""}, {}, "P"},
                      {"<Player>", {"C", "<City>", "", ""}, {}, "<City>"},
                      {"<Weapon>", {"", "", "<Rating>", "R"}, {}, "R"},
                      {"<Rating>", {"", "", "W", "<Weapon>"}, {}, "<Weapon>"},
                      {"<Rating>", {"", "", "", "<Curse>"}, {2}, "Cu2"}};
  for (const auto& [text, values, picks, expected] : rows) {
    ScriptedRandom script;
    for (int pick : picks) script.Push(PickIndex(pick, 5));
    EXPECT_EQ(CTextUtils::ParseGameTokens(text, values[0], values[1], values[2], values[3]), expected)
        << text;
    EXPECT_EQ(script.Draws(), static_cast<int>(picks.size())) << text;
  }
  fs.Remove(SystemFile("General.001"));
  EXPECT_EQ(CTextUtils::ParseGameTokens("Oh <Exclaim>", "", "", "", ""),
            std::string("Oh ") + kMissingFilesText);
}

// Every pass draws once; nesting is no structure: "{x/{y}}" is the group
// "{x/{y}", and an option that brings a "{" in starts the next pass's group.
TEST_F(TokenTest, AChoiceTakesTheDrawnOptionAsItStandsForEveryCopyOfItself) {
  // Rows: text, draws, result.
  const std::tuple<const char*, std::vector<float>, const char*> rows[] = {
      {"a } b", {}, "a } b"},
      {"a {red/ green /blue} hat", {PickIndex(1, 3)}, "a  green  hat"},
      {"{only}!", {0.9f}, "only!"},
      {"x{word/}y", {PickIndex(1, 2)}, "xy"},
      {"{/}", {0}, ""},
      {"{a/b} {a/b} {c/d}", {PickIndex(0, 2), PickIndex(1, 2)}, "a a d"},
      {"{x/{y}}", {PickIndex(0, 2)}, "x}"},
      {"{x/{y}}", {PickIndex(1, 2), 0}, "y"},
      {"open { never closed", {}, "open { never closed"},
      {"} then {a}", {0}, "} then a"},
      {"empty {} braces", {0}, "empty  braces"},
      {"{a/b} then {", {0}, "a then {"}};
  for (const auto& [text, draws, expected] : rows) {
    ScriptedRandom script(draws);
    EXPECT_EQ(CTextUtils::ParseInlineTokens(text), expected) << text;
    EXPECT_EQ(script.Draws(), static_cast<int>(draws.size())) << text;
  }
}

TEST_F(TokenTest, AThousandPassesAndNoMore) {
  std::string text;
  for (int i = 0; i < 1001; ++i) text += "{" + std::to_string(i) + "}";
  const std::string resolved = CTextUtils::ParseInlineTokens(text);
  EXPECT_EQ(resolved.substr(resolved.size() - 7), "9{1000}");
  text.resize(text.size() - 6);  // exactly 1000 choices
  EXPECT_EQ(CTextUtils::ParseInlineTokens(text).find('{'), std::string::npos);
}

TEST_F(TokenTest, ATokenInsideAnOptionIsFetchedBeforeTheChoice) {
  WriteLists("General.001", {{"General-Curse", {"x/y}"}}});
  WriteLists("Misc.001", {{"Misc-A", {"{<Curse>/z}"}}});
  random.Push(0.0f);   // the outer pick
  random.Push(0.0f);   // the curse's pick
  random.Push(0.75f);  // the choice: second of "{x/y}"
  // The fetched "/" and "}" count like written ones: the group is "{x/y}".
  EXPECT_EQ(CTextGenerator().GetText("Misc-A"), "y/z}");
}

// Lists written to explode: tokens that fetch themselves, long values and
// lines past the length bound. A pick ends with a bounded text, and all
// its lookups read the family once.
TEST_F(TokenTest, ExpansionStaysWithinItsBounds) {
  std::string many;
  for (int i = 0; i < 1000; ++i) many += "<Insult>";
  const std::tuple<std::string, std::string, int> rows[] = {// a Curse line, the Insult line, reads
                                                            {"<Insult>", "<Insult> <Insult> <Curse>", 2},
                                                            {"{a/b}" + many, std::string(32000, 'x'), 2},
                                                            {std::string(40000, 'x') + "{z}", "", 1}};
  for (const auto& [curse, insult, reads] : rows) {
    WriteLists("General.001", {{"General-Curse", {curse}}, {"General-Insult", {insult}}});
    fs.ClearLog();
    const std::string text = CTextGenerator().GetText("General-Curse");
    EXPECT_EQ(text.find_first_of("<{"), std::string::npos) << insult.substr(0, 9);
    EXPECT_LE(text.size(), kMaxTextLength) << insult.substr(0, 9);
    EXPECT_EQ(fs.Reads(SystemFile("General.001")), reads) << insult.substr(0, 9);
  }
}

TEST_F(TokenTest, TokensNestAndFetchNoFurtherThanTheirBounds) {
  WriteLists("General.001", {{"General-Insult", {"a<Insult>"}}});
  EXPECT_EQ(CTextUtils::ParseGameTokens("<Insult>", "", "", "", ""), std::string(kMaxTokenDepth, 'a'));
  KeyLines lists;
  for (const char* key : kShorthandKeys)
    lists.push_back({key, {"<RandomChar><Insult><Curse><Exclaim><AutoDealer>"}});
  WriteLists("General.001", lists);
  const int before = random.Draws();
  CTextUtils::ParseGameTokens("<Insult>", "", "", "", "");
  EXPECT_EQ(random.Draws() - before, kMaxTokenLookups);  // one pick, one draw, per lookup
}

TEST_F(TokenTest, SpentWorkLeavesTheRestOfTheChoices) {
  std::string text(25000, 'x');
  for (int i = 0; i < 1000; ++i) text += "{" + std::to_string(i) + "}";
  EXPECT_NE(CTextUtils::ParseInlineTokens(text).find('{'), std::string::npos);
  EXPECT_LT(random.Draws(), 1000);
}

}  // namespace
}  // namespace jeerbox::testing
