// File helpers over the platform's file system, and pure path helpers.
#include "support/MSimpleIO.h"

#include <algorithm>

#include "platform/file_system.h"

namespace jeerbox {
namespace {

IFileSystem* gFileSystem = nullptr;

}  // namespace

IFileSystem& CurrentFileSystem() { return gFileSystem ? *gFileSystem : HostFileSystem(); }

IFileSystem* SetFileSystem(IFileSystem* fs) {
  IFileSystem* previous = gFileSystem;
  gFileSystem = fs;
  return previous;
}

bool ReplaceFiles(const std::vector<FileReplacement>& files, ReplaceFailure* failure) {
  IFileSystem& fs = CurrentFileSystem();
  ReplaceFailure failed;
  size_t written = 0;
  while (written < files.size() &&
         fs.WriteFile(files[written].temp, *files[written].contents, &failed.reason))
    ++written;
  size_t renamed = 0;
  if (written == files.size()) {
    while (renamed < files.size() && fs.RenameFile(files[renamed].temp, files[renamed].path, &failed.reason))
      ++renamed;
    if (renamed == files.size()) return true;
    failed.path = files[renamed].path;
  } else {
    failed.path = files[written].temp;
    failed.writing = true;
  }
  // The one that failed to be written may be there in part.
  const size_t end = std::min(written + 1, files.size());
  for (size_t i = renamed; i < end; ++i) fs.RemoveFile(files[i].temp, nullptr);
  if (failure != nullptr) *failure = std::move(failed);
  return false;
}

// Beside the target first, so that a reader never sees half a file.
bool ReplaceWholeFile(const std::string& path, const std::string& contents) {
  return ReplaceFiles({{path, path + ".new", &contents}}, nullptr);
}

bool FileExists(const std::string& path) { return CurrentFileSystem().FileExists(path); }

std::string ReadWholeFile(const std::string& path, size_t maxBytes) {
  std::string contents;
  try {
    if (CurrentFileSystem().ReadFile(path, &contents, maxBytes) == FileStatus::kOk) return contents;
  } catch (...) {  // memory, say: a file that can't be held can't be read
  }
  return std::string();
}

std::string StripPath(const std::string& path) {
  const size_t slash = path.rfind('\\');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

// A "." in front of the last "\" belongs to a directory; it isn't taken as
// an extension, so "C:\a.b\name" keeps its name whole.
std::string StripExtension(const std::string& path) {
  const size_t dot = path.rfind('.');
  if (dot == std::string::npos) return path;
  const size_t slash = path.rfind('\\');
  if (slash != std::string::npos && slash > dot) return path;
  return path.substr(0, dot);
}

std::string ChangeExtension(const std::string& path, const std::string& extension) {
  std::string ext = extension;
  if (!ext.empty() && ext[0] == '.') ext.erase(0, 1);
  std::string result = StripExtension(path);
  if (!ext.empty()) result += "." + ext;
  return result;
}

std::string BaseName(const std::string& path) {
  // A text key: nothing to strip.
  if (path.find('\\') == std::string::npos && path.find('.') == std::string::npos) return path;
  return ChangeExtension(StripPath(path), "");
}

std::string Trim(const std::string& text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return std::string();
  const size_t last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

std::string Trim(std::string&& text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return std::string();
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, first);
  return std::move(text);
}

}  // namespace jeerbox
