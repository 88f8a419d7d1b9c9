// Sentence composition. The order of the fetches and draws below is the
// order of the random sequence: changing it changes every seeded sentence.
#include "compose/MJeerbox.h"

#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"
#include "text/charset.h"
#include "text/find_bytes.h"
#include "text/shorthand.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

int AdjectiveCount(int r) {
  if (r <= 3) return 0;
  if (r <= 5) return 2;
  if (r == 6) return kMaxAdjectives;
  return 1;
}

// A text is refused when it occurs anywhere in the list so far. An empty
// list holds nothing, not even the empty text. The search is linear: a
// list made of near matches would make a plain find quadratic, and the
// composer may ask 64 times.
bool AlreadyUsed(const std::string& adjectives, const std::string& text) {
  return !adjectives.empty() && FindBytes(adjectives, text) != std::string_view::npos;
}

// When the list can't supply a new text (too few lines, or the files are
// missing and every fetch is the same fixed line), the sentence keeps the
// adjectives found so far and no further ones are sought.
std::string FetchAdjectives(CTextGenerator& generator, int count) {
  std::string adjectives;
  for (int i = 0; i < count; ++i) {
    std::string text = generator.GetText(kAdjectiveKey);
    for (int tries = 1; AlreadyUsed(adjectives, text); ++tries) {
      if (tries >= kMaxAdjectiveTries) return adjectives;
      text = generator.GetText(kAdjectiveKey);
    }
    if (!adjectives.empty()) adjectives += ", ";
    adjectives += text;
  }
  return adjectives;
}

std::string ComposeSentence() {
  CTextGenerator generator;
  generator.Setup(nullptr);

  const std::string whoSays = generator.GetText(kWhoSaysKey) + " ";
  const std::string person = generator.GetText(kPersonKey) + " ";
  std::string howBig = generator.GetText(kHowBigKey) + " ";

  const int count = AdjectiveCount(RandomNumber(10));
  std::string adjectives = FetchAdjectives(generator, count);
  if (count > 0) adjectives += " ";

  const std::string noun = generator.GetText(kNounKey) + " ";
  const std::string andMore = generator.GetText(kAndMoreKey) + " ";
  const std::string someone = generator.GetText(kSomeoneKey) + " ";

  howBig = FixArticle(howBig, count > 0 ? adjectives : noun);
  std::string insult = howBig + adjectives + noun;
  if (Chance(0.4f)) insult += andMore + someone;

  const int shape = RandomNumber(20);
  if (shape == 1) return Capitalise(noun);
  if (shape <= 4) return "You " + noun;
  if (shape <= 16) return "You " + insult;
  return whoSays + "said " + person + Trim(insult) + "!!";
}

}  // namespace

// Held to the bound of one pick: a sentence of crafted lists would otherwise
// be ten picks long, and the window would take its time laying it out.
std::string GenerateInsult() {
  std::string sentence = ComposeSentence();
  if (sentence.size() > kMaxTextLength) sentence.resize(kMaxTextLength);
  return sentence;
}

std::string FixArticle(const std::string& phrase, const std::string& nextWords) {
  const std::string trimmed = Trim(phrase);
  const std::string padded = trimmed + " ";
  const std::string last3 = padded.size() <= 3 ? padded : padded.substr(padded.size() - 3);
  if (last3 != " a " || nextWords.empty()) return phrase;
  switch (ToLower1252(nextWords[0])) {
    case 'a':
    case 'e':
    case 'i':
    case 'o':
    case 'u':
      return trimmed + "n ";
    default:
      return phrase;
  }
}

std::string Capitalise(const std::string& text) {
  std::string out = text;
  for (size_t i = 0; i < out.size(); ++i) out[i] = i == 0 ? ToUpper1252(out[i]) : ToLower1252(out[i]);
  return out;
}

std::string RandomCharacter() { return ShorthandText(kCharacterKey); }
std::string RandomInsult() { return ShorthandText(kInsultKey); }
std::string RandomCurse() { return ShorthandText(kCurseKey); }
std::string RandomExclaim() { return ShorthandText(kExclaimKey); }
std::string RandomAutoDealer() { return ShorthandText(kAutoDealerKey); }

}  // namespace jeerbox
