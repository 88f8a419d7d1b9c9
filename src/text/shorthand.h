// The named tokens that fetch a further line, and the one lookup behind
// them: a fresh generator, no game, one GetText.
#pragma once

#include <string>

#include "text/wordlist_format.h"

namespace jeerbox {

struct ShorthandToken {
  const char* token;
  const char* key;
};

// In the order the token pass handles them.
inline constexpr ShorthandToken kShorthandTokens[] = {
    {"<RandomChar>", kCharacterKey}, {"<Insult>", kInsultKey},         {"<Curse>", kCurseKey},
    {"<Exclaim>", kExclaimKey},      {"<AutoDealer>", kAutoDealerKey},
};

// How deep tokens may fetch tokens, and how many lookups one outermost
// fetch may cause in all. Past either bound a token becomes "", so a line
// whose token fetches itself ends quickly instead of recursing forever.
constexpr int kMaxTokenDepth = 4;
constexpr int kMaxTokenLookups = 64;

// GetText(key) of a new generator set up with no game, within the bounds.
std::string ShorthandText(const std::string& key);

}  // namespace jeerbox
