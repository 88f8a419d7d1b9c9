// The named tokens that fetch a further line, the one lookup behind them,
// and the bounds that keep a pick's expansion small whatever the files hold.
#pragma once

#include <cstddef>
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

// The longest text a pick works on or yields: a longer line is cut here when
// it is picked, and so is a replacement that would make a text longer. A
// brace pass only ever shortens a text.
constexpr size_t kMaxTextLength = 32767;

// The work one request may spend on its tokens and choices, in bytes of
// text scanned or built; a lookup counts kLookupWork besides. Once it is
// spent a token becomes "" and a choice stays with its braces.
constexpr size_t kMaxExpansionWork = size_t{16} << 20;
constexpr size_t kLookupWork = 4096;

// One request: a generator's life, or a pass called on its own. The first
// request on a thread owns the budget and the generator its lookups share,
// so a family is read once for all the lookups of a sentence; requests
// made inside it (the lookups' own generators) join it.
class ExpansionRequest {
 public:
  ExpansionRequest();
  ~ExpansionRequest();
  ExpansionRequest(const ExpansionRequest&) = delete;
  ExpansionRequest& operator=(const ExpansionRequest&) = delete;

 private:
  bool mOwner;
};

// Counts work against the current request.
void SpendWork(size_t bytes);
// True while the current request has work left.
bool HasWorkLeft();

// GetText(key) of a generator set up with no game, within the bounds; ""
// past them or when the lookup fails.
std::string ShorthandText(const std::string& key);

}  // namespace jeerbox
