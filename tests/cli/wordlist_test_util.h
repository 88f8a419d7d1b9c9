// Shared by the word-list tool tests: packing in memory, reading packed
// files back through the program's own reader, running jeer.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "cli/packer.h"
#include "helpers/run_command.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"

namespace jeerbox::testing {

// Every file of `dir`, name to bytes.
inline std::map<std::string, std::string> DirContents(const std::string& dir) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(dir)) {
    std::ifstream in(entry.path(), std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    files[entry.path().filename().string()] = bytes.str();
  }
  return files;
}

// The key's line list as the program reads it from root/System, unscrambled;
// an empty vector when the program finds nothing.
inline std::vector<std::string> ReadList(const std::string& root, const std::string& key) {
  gAppPath = root;
  gAllowMarkedText = true;
  CTextGenerator generator;
  std::vector<std::string> lines;
  for (std::string_view line : generator.GetCacheItem(key)) lines.push_back(SimpleCrypt(line));
  if (lines.size() == 1 && lines[0].empty()) lines.clear();
  return lines;
}

using ToolRun = CommandRun;

// Runs the jeer binary with `args`, capturing both streams.
ToolRun RunJeer(const std::string& args);

}  // namespace jeerbox::testing
