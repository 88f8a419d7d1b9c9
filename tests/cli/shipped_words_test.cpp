// The word lists that ship in data/words: they pack, check clean, and hold
// what the composer needs to make sentences that read as English.
#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "cli/checker.h"
#include "compose/MJeerbox.h"
#include "helpers/temp_dir.h"
#include "support/MSimpleIO.h"
#include "support/random.h"
#include "wordlist_test_util.h"

namespace jeerbox::testing {
namespace {

// Every text a line can expand to, for lines without tokens: each brace
// group replaced by each of its options in turn.
std::vector<std::string> Expansions(const std::string& line) {
  const size_t open = line.find('{');
  if (open == std::string::npos) return {line};
  const size_t close = line.find('}', open);
  std::vector<std::string> out;
  const std::string inner = line.substr(open + 1, close - open - 1);
  size_t start = 0;
  for (;;) {
    const size_t slash = inner.find('/', start);
    const std::string option = inner.substr(start, slash == std::string::npos ? slash : slash - start);
    for (std::string& rest : Expansions(line.substr(close + 1)))
      out.push_back(line.substr(0, open) + option + rest);
    if (slash == std::string::npos) break;
    start = slash + 1;
  }
  return out;
}

// "a" as a word of its own in front of a, e, i or o: wrong in any line
// (the rule only mends HowBig). "a u..." may be right ("a unicycle").
bool ArticleBeforeVowel(const std::string& sentence) {
  for (size_t at = sentence.find("a "); at != std::string::npos; at = sentence.find("a ", at + 1)) {
    const bool word = at == 0 || sentence[at - 1] == ' ' || sentence[at - 1] == '"';
    if (word && at + 2 < sentence.size() &&
        std::string("aeioAEIO").find(sentence[at + 2]) != std::string::npos)
      return true;
  }
  return false;
}

class ShippedWords : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    std::vector<std::string> names;
    std::string error;
    ASSERT_TRUE(ListFiles(WORDS_DIR, &names, &error)) << error;
    std::vector<NamedFile> sources;
    for (const std::string& name : names) {
      if (name.size() < 4 || name.substr(name.size() - 4) != ".txt") continue;
      sources.push_back({name, ""});
      ASSERT_TRUE(ReadFileBytes(std::string(WORDS_DIR) + "/" + name, &sources.back().bytes, &error));
    }
    sResult = new PackResult(PackSources(sources));
    sRoot = new TempDir;
    ASSERT_TRUE(WriteFilesAtomically(sRoot->Path() + "/System", sResult->files, &error)) << error;
  }
  static void TearDownTestSuite() {
    delete sRoot;
    delete sResult;
  }
  static std::vector<std::string> List(const std::string& key) { return ReadList(sRoot->Path(), key); }

  static PackResult* sResult;
  static TempDir* sRoot;
};
PackResult* ShippedWords::sResult = nullptr;
TempDir* ShippedWords::sRoot = nullptr;

TEST_F(ShippedWords, PackAndCheckClean) {
  for (const Diagnostic& diagnostic : sResult->diagnostics) ADD_FAILURE() << diagnostic.ToString();
  gAppPath = sRoot->Path();
  const CheckReport report = CheckSystem();
  for (const KeyReport& key : report.keys)
    for (const std::string& problem : key.problems) ADD_FAILURE() << key.key << ": " << problem;
  EXPECT_EQ(report.ProblemCount(), 0);
  // The extra set is a marked file.
  EXPECT_EQ(report.families[1].family, "Misc");
  EXPECT_EQ(report.families[1].marked, 1);
}

TEST_F(ShippedWords, EveryListIsBigEnoughAndTheTemplatesAreUsed) {
  size_t lines = 0, templated = 0;
  for (const ProgramKey& key : kProgramKeys) {
    const std::vector<std::string> list = List(key.key);
    const std::string name = key.key;
    const size_t least = name == "Misc-Jeerbox-Adjective" || name == "Misc-Jeerbox-Noun" ? 200 : 40;
    EXPECT_GE(list.size(), least) << name;
    for (const std::string& line : list) {
      ++lines;
      if (line.find_first_of("{<") != std::string::npos) ++templated;
    }
  }
  EXPECT_GE(templated * 10, lines) << templated << " of " << lines;
}

// The article rule looks at a letter, not a sound: words that begin with
// a vowel sounded like "you" or "won", or with a silent h, would read
// wrongly behind "a" or "an".
TEST_F(ShippedWords, NounsAndAdjectivesSuitTheArticleRuleAndCapitals) {
  const char* badStarts[] = {"eu", "ewe", "one",  "once",   "uni",   "use", "usu",
                             "ur", "uk",  "hour", "honest", "honou", "heir"};
  for (const char* key : {"Misc-Jeerbox-Noun", "Misc-Jeerbox-Adjective"}) {
    for (const std::string& line : List(key)) {
      for (const std::string& text : Expansions(line)) {
        const std::string trimmed = Trim(text);
        ASSERT_FALSE(trimmed.empty()) << line;
        for (const char* bad : badStarts) {
          EXPECT_NE(trimmed.rfind(bad, 0), 0u) << key << ": " << text;
        }
        // "Turnip" alone lower-cases all but the first letter.
        if (std::string(key) == "Misc-Jeerbox-Noun") {
          EXPECT_EQ(Capitalise(trimmed).substr(1), trimmed.substr(1)) << text;
        }
      }
    }
  }
}

TEST_F(ShippedWords, SentencesOpenWithACapitalAndHowBigFitsBothPlaces) {
  for (const std::string& line : List("Misc-Jeerbox-WhoSays")) {
    const bool token = line.rfind("<Curse>", 0) == 0 || line.rfind("<Exclaim>", 0) == 0;
    EXPECT_TRUE(token || std::isupper(static_cast<unsigned char>(line[0]))) << line;
  }
  // Behind "You" and behind a Person line, HowBig never brings its own
  // leading article: "You a turnip" and "one a turnip" don't read.
  for (const std::string& line : List("Misc-Jeerbox-HowBig")) {
    EXPECT_NE(line.rfind("a ", 0), 0u) << line;
    EXPECT_NE(line.rfind("an ", 0), 0u) << line;
    EXPECT_NE(line.rfind("the ", 0), 0u) << line;
  }
}

TEST_F(ShippedWords, SentencesAreVariedAndTheirArticlesFit) {
  gAppPath = sRoot->Path();
  SeedRandom(1);
  constexpr int kSentences = 10000;
  std::set<std::string> distinct;
  for (int i = 0; i < kSentences; ++i) {
    const std::string sentence = GenerateInsult();
    EXPECT_EQ(sentence.find("##"), std::string::npos) << sentence;
    EXPECT_FALSE(ArticleBeforeVowel(sentence)) << sentence;
    distinct.insert(sentence);
  }
  EXPECT_GE(distinct.size() * 100, kSentences * 98u) << distinct.size();
}

}  // namespace
}  // namespace jeerbox::testing
