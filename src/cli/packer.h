// jeer pack: word-list sources in, scrambled numbered System\ files out,
// refusing anything the reader would not get back as written.
#pragma once

#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/tool_files.h"
#include "cli/wordlist_source.h"

namespace jeerbox {

struct PackStats {
  int keys = 0;
  int lines = 0;
  bool marked = false;
};

// One source file packed: its bytes in the System\ form, or diagnostics.
// `keyLines` gathers the data lines per key over a family.
struct KeyTally {
  int lines = 0;
  std::string file;  // where the key's first section stands
  int line = 0;
};
std::string PackSource(const std::string& fileName, const std::string& family, std::string_view bytes,
                       std::vector<Diagnostic>* diagnostics, std::map<std::string, KeyTally>* keyLines,
                       PackStats* stats);

struct PackResult {
  std::vector<NamedFile> files;  // empty when there are diagnostics
  std::vector<PackStats> stats;  // one per file
  std::vector<std::string> families;
  std::vector<Diagnostic> diagnostics;
};

// Packs a set of sources named FAMILY.NNN.txt. Any diagnostic, in any file,
// and nothing is packed.
PackResult PackSources(const std::vector<NamedFile>& sources);

// The whole command: reads SOURCE_DIR, writes SYSTEM_DIR all or nothing,
// removes the numbered files of the packed families that the sources no
// longer have. Returns the exit code.
int RunPack(const std::string& sourceDir, const std::string& systemDir, std::ostream& out, std::ostream& err);

}  // namespace jeerbox
