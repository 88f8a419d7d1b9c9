// The commands of jeer that compose, as plain functions over their options:
// main.cpp parses the command line into them (and calls pack, unpack and
// check from the word-list tools the same way).
#pragma once

#include <cstdint>
#include <string>

namespace jeerbox {

// Exit codes: 0 done, 1 the work found a problem, 2 the call was wrong.
constexpr int kExitProblem = 1;
constexpr int kExitUsage = 2;

struct ComposeOptions {
  std::string key;   // pick and lines
  std::string root;  // "" for where jeer lies
  uint64_t count = 1;
  uint64_t seed = 0;
  bool seeded = false;
  bool escape = false;
};

// say: sentences, as "Insult me" makes them.
int RunSay(const ComposeOptions& options);
// pick: random lines of one key, expanded.
int RunPick(const ComposeOptions& options);
// lines: a key's lines as read from the files, unscrambled and escaped.
int RunLines(const ComposeOptions& options);

// The program directory jeer works on: --root, or where jeer itself lies.
std::string ResolveRoot(const std::string& root);

}  // namespace jeerbox
