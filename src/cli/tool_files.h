// Directory listing, whole-file reading and all-or-nothing writing for the
// word-list tools, through the program's file system. Directories are host
// paths as the user gave them; a name joins its directory with "\".
#pragma once

#include <string>
#include <vector>

namespace jeerbox {

struct NamedFile {
  std::string name;  // file name, no directory
  std::string bytes;
};

std::string JoinPath(const std::string& dir, const std::string& name);

// The names of the regular files in `dir`, sorted. False with a reason when
// the directory can't be read.
bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error);

bool ReadFileBytes(const std::string& path, std::string* bytes, std::string* error);

// Writes every file to a temporary file in `dir` (created if missing), and
// only when all are written renames each into place. A failure before the
// renames removes the temporaries and leaves the old files as they were.
bool WriteFilesAtomically(const std::string& dir, const std::vector<NamedFile>& files, std::string* error);

// Removes dir\name for each name; false with a reason at the first failure.
// A file that is gone already counts as removed.
bool RemoveFiles(const std::string& dir, const std::vector<std::string>& names, std::string* error);

}  // namespace jeerbox
