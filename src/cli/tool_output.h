// How jeer pack and unpack start, reading the files of a directory, and how
// they end: what they found, the files written all or nothing, a summary.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/tool_files.h"
#include "cli/wordlist_source.h"

namespace jeerbox {

// "1 line", "2 lines".
std::string Plural(size_t n, const std::string& thing);

// A file name split into family and number; false for a name the tool
// doesn't take.
using NameParser = bool (*)(std::string_view name, std::string* family, int* number);

// The files of `dir` whose names `parse` takes, read whole, in name order.
// False, with the reason on `err`, when the directory or one of the files
// can't be read or none is taken; `what` names the files for that case.
bool ReadToolInput(const std::string& command, const std::string& dir, NameParser parse,
                   const std::string& what, std::vector<NamedFile>* files, std::ostream& err);

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
