// The parts of jeer check: what the reader passes over in the files of a
// family, what is wrong with a key's lines, and where tokens lead.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "cli/checker.h"
#include "text/LineList.h"

namespace jeerbox {

// One family as the program reads it, with what the key table needs.
struct FamilyScan {
  FamilyReport report;
  std::map<std::string, int> filesPerKey;    // files holding a section of the key
  std::map<std::string, int> droppedPerKey;  // stored lines of blanks the reader drops
};

// The numbered files in gAppPath\System by family, added to `families`.
void AddPresentFiles(std::map<std::string, std::set<int>>* families);

// Reads the family's files from 001 up to the first missing one; `present`
// are the numbers listed in the directory.
FamilyScan ScanFamily(const std::string& family, const std::set<int>& present);

// For each key, the keys its tokens fetch lines of.
using TokenGraph = std::map<std::string, std::set<std::string>>;

// Counts the key's lines and adds what is wrong with them to its problems;
// notes where its tokens lead.
void CheckLines(const LineList& lines, KeyReport* report, TokenGraph* reaches);

// A shortest chain of tokens that leads from the key back to itself, as the
// keys on the way, or empty when none does.
std::vector<std::string> CycleThrough(const std::string& key, const TokenGraph& reaches);

}  // namespace jeerbox
