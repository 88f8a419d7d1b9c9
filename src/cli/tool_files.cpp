#include "cli/tool_files.h"

#include <unistd.h>

#include "platform/file_system.h"
#include "support/MSimpleIO.h"

namespace jeerbox {
namespace {

// "path: reason", the path as the user writes it.
std::string Failure(const std::string& path, const std::string& reason) {
  return NativePath(path) + ": " + reason;
}

}  // namespace

std::string JoinPath(const std::string& dir, const std::string& name) { return dir + "\\" + name; }

bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error) {
  std::string reason;
  if (CurrentFileSystem().ListFiles(dir, names, &reason)) return true;
  *error = Failure(dir, reason);
  return false;
}

// Through the guarded read, as the program reads: a pipe never blocks, and
// a file too large for a word list is refused, not allocated.
bool ReadFileBytes(const std::string& path, std::string* bytes, std::string* error) {
  switch (CurrentFileSystem().ReadFile(path, bytes, kMaxWordListBytes)) {
    case FileStatus::kOk:
      return true;
    case FileStatus::kNotFound:
      *error = Failure(path, "can't be opened");
      return false;
    case FileStatus::kError:
      break;
  }
  *error = Failure(path, "can't be read (not a readable file of at most " +
                             std::to_string(kMaxWordListBytes >> 20) + " MB)");
  return false;
}

bool WriteFilesAtomically(const std::string& dir, const std::vector<NamedFile>& files, std::string* error) {
  std::string reason;
  if (!CurrentFileSystem().MakeDirectories(dir, &reason)) {
    *error = Failure(dir, reason);
    return false;
  }
  // Hidden and named for the process, so two runs don't write each other's.
  const std::string suffix = ".jeer-tmp-" + std::to_string(getpid());
  std::vector<FileReplacement> replacements;
  replacements.reserve(files.size());
  for (const NamedFile& file : files)
    replacements.push_back({JoinPath(dir, file.name), JoinPath(dir, "." + file.name + suffix), &file.bytes});
  ReplaceFailure failure;
  if (ReplaceFiles(replacements, &failure)) return true;
  *error = Failure(failure.path, failure.writing ? "can't be written" : failure.reason);
  return false;
}

bool RemoveFiles(const std::string& dir, const std::vector<std::string>& names, std::string* error) {
  IFileSystem& fs = CurrentFileSystem();
  for (const std::string& name : names) {
    const std::string path = JoinPath(dir, name);
    std::string reason;
    if (!fs.RemoveFile(path, &reason) && fs.FileExists(path)) {
      *error = Failure(path, reason);
      return false;
    }
  }
  return true;
}

}  // namespace jeerbox
