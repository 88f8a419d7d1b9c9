// The insult composer: seven word lists, four sentence shapes, and the one
// rule of English it knows (a becomes an before a vowel).
#pragma once

#include <string>

namespace jeerbox {

// A fresh sentence of at most kMaxTextLength characters. Never fails:
// missing word lists show up as the fixed "files missing" line inside it.
std::string GenerateInsult();

// `phrase` trimmed with "n " appended when it ends in the separate word "a"
// and `nextWords` begins with a vowel; otherwise `phrase` unchanged.
std::string FixArticle(const std::string& phrase, const std::string& nextWords);

// First character upper case, all others lower case (Windows-1252 letters).
std::string Capitalise(const std::string& text);

// How often an adjective is fetched again for a text not yet in the list
// before the composer settles for the adjectives it has.
constexpr int kMaxAdjectiveTries = 64;

// One line of a General list each, through a generator of its own.
std::string RandomCharacter();
std::string RandomInsult();
std::string RandomCurse();
std::string RandomExclaim();
std::string RandomAutoDealer();

}  // namespace jeerbox
