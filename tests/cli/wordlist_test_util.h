// Shared by the word-list tool tests: reading packed files back through
// the program's own reader, and running jeer.
#pragma once

#include <string>
#include <vector>

#include "helpers/run_command.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"

namespace jeerbox::testing {

// The key's line list as the program reads it from root\System, unscrambled;
// empty when the program finds nothing.
inline std::vector<std::string> ReadList(const std::string& root, const std::string& key) {
  gAppPath = root;
  CTextGenerator generator;  // holds the files the lines point into
  std::vector<std::string> lines;
  for (std::string_view line : generator.GetCacheItem(key)) lines.push_back(SimpleCrypt(line));
  if (lines.size() == 1 && lines[0].empty()) lines.clear();
  return lines;
}

// Runs the jeer binary with `args`.
inline CommandRun RunJeer(const std::string& args) { return RunCommand(std::string(JEER_PATH) + " " + args); }

}  // namespace jeerbox::testing
