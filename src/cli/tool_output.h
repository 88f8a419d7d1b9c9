// How jeer pack and unpack end: what they found, then the files written all
// or nothing, and a summary.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "cli/tool_files.h"
#include "cli/wordlist_source.h"

namespace jeerbox {

// "1 line", "2 lines".
std::string Plural(size_t n, const std::string& thing);

struct ToolOutput {
  std::vector<Diagnostic> diagnostics;  // any of them, and nothing is written
  std::vector<Diagnostic> notes;        // told, but no reason to stop
  std::vector<NamedFile> files;
  std::vector<std::string> fileNotes;  // shown behind each file's name; may be empty
  std::vector<std::string> removals;   // files of the target that no source makes any more
};

// Prints the notes and diagnostics as readDir\file:line; with any diagnostic
// returns 1 and writes nothing. Otherwise writes the files to writeDir all or
// nothing, removes the removals there, lists what it did and returns 0.
// `command` ("jeer pack") opens the tool's own lines.
int FinishTool(const std::string& command, const std::string& readDir, const std::string& writeDir,
               const ToolOutput& output, std::ostream& out, std::ostream& err);

}  // namespace jeerbox
