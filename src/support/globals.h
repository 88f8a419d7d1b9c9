// The process-wide values every subsystem reads, and two small helpers that
// go with them.
#pragma once

#include <string>

namespace jeerbox {

// Directory of the program, with no trailing separator: the root of every
// relative path the program builds.
extern std::string gAppPath;
// Whether marked text files are read. Set once at start, never cleared.
extern bool gAllowMarkedText;

constexpr const char* kAppTitle = "Jeerbox";

// True when a draw of NextRandom is below p.
bool Chance(float p);

// True when the collection can return an item for the key.
template <typename Collection, typename Key>
bool CollectionHasKey(const Collection& collection, const Key& key) {
  return collection.find(key) != collection.end();
}

}  // namespace jeerbox
