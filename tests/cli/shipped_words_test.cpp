// The word lists that ship, as the build packed them into System/: they
// check clean and hold what the composer needs to make sentences that read
// as English.
#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "cli/checker.h"
#include "compose/MJeerbox.h"
#include "support/MSimpleIO.h"
#include "support/random.h"
#include "wordlist_test_util.h"

namespace jeerbox::testing {
namespace {

// Every text a line can expand to, for lines without tokens.
std::vector<std::string> Expansions(const std::string& line) {
  const size_t open = line.find('{'), close = line.find('}', open);
  if (open == std::string::npos) return {line};
  std::vector<std::string> out;
  for (size_t start = open + 1, slash = 0; slash < close; start = slash + 1) {
    slash = std::min(line.find('/', start), close);
    for (std::string& rest : Expansions(line.substr(close + 1)))
      out.push_back(line.substr(0, open) + line.substr(start, slash - start) + rest);
  }
  return out;
}

TEST(ShippedWords, CheckCleanWithTheExtraSetMarked) {
  gAppPath = PROGRAM_DIR;
  const CheckReport report = CheckSystem();
  for (const KeyReport& key : report.keys)
    for (const std::string& problem : key.problems) ADD_FAILURE() << key.key << ": " << problem;
  EXPECT_EQ(report.ProblemCount(), 0);
  EXPECT_EQ(report.families[1].family + " " + std::to_string(report.families[1].marked), "Misc 1");
}

// Lists long enough, templates used, and words that suit their place: the
// article rule looks at a letter, not a sound, so no noun or adjective
// starts like "you", "won" or a silent h; a noun alone is capitalised
// ("Turnip"); sentences open with a capital; and HowBig, behind "You" or a
// Person line, brings no article of its own.
TEST(ShippedWords, ListsSuitTheirPlaces) {
  size_t lines = 0, templated = 0;
  for (const ProgramKey& key : kProgramKeys) {
    const std::string name = key.key;
    const std::vector<std::string> list = ReadList(PROGRAM_DIR, name);
    EXPECT_GE(list.size(), name == "Misc-Jeerbox-Adjective" || name == "Misc-Jeerbox-Noun" ? 200u : 40u)
        << name;
    lines += list.size();
    for (const std::string& line : list) {
      templated += line.find_first_of("{<") != std::string::npos;
      EXPECT_TRUE(name != "Misc-Jeerbox-WhoSays" || std::isupper(static_cast<unsigned char>(line[0])) ||
                  line.rfind("<Curse>", 0) == 0 || line.rfind("<Exclaim>", 0) == 0)
          << line;
      for (const char* article : {"a ", "an ", "the "})
        EXPECT_FALSE(name == "Misc-Jeerbox-HowBig" && line.rfind(article, 0) == 0) << line;
      if (name != "Misc-Jeerbox-Noun" && name != "Misc-Jeerbox-Adjective") continue;
      for (const std::string& expanded : Expansions(line)) {
        const std::string text = Trim(expanded);
        ASSERT_FALSE(text.empty()) << line;
        for (const char* bad :
             {"eu", "ewe", "one", "once", "uni", "use", "usu", "ur", "uk", "hour", "honest", "honou", "heir"})
          EXPECT_NE(text.rfind(bad, 0), 0u) << name << ": " << text;
        EXPECT_TRUE(name != "Misc-Jeerbox-Noun" || Capitalise(text).substr(1) == text.substr(1)) << text;
      }
    }
  }
  EXPECT_GE(templated * 10, lines) << templated << " of " << lines;
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
