#include "helpers/memory_file_system.h"

namespace jeerbox {
namespace {

bool Refuse(std::string* error, const char* reason) {
  if (error) *error = reason;
  return false;
}

}  // namespace

std::string MemoryFileSystem::Contents(const std::string& path) const {
  auto it = mFiles.find(path);
  return it == mFiles.end() ? std::string() : it->second;
}

bool MemoryFileSystem::IsDirectory(const std::string& path) const {
  const std::string prefix = path + "\\";
  auto it = mFiles.lower_bound(prefix);
  return it != mFiles.end() && it->first.compare(0, prefix.size(), prefix) == 0;
}

bool MemoryFileSystem::FileExists(const std::string& path) {
  return mFiles.count(path) > 0 || mUnreadable.count(path) > 0 || IsDirectory(path);
}

FileStatus MemoryFileSystem::ReadFile(const std::string& path, std::string* contents, size_t maxBytes) {
  contents->clear();
  if (mUnreadable.count(path) || IsDirectory(path)) return FileStatus::kError;
  auto it = mFiles.find(path);
  if (it == mFiles.end()) return FileStatus::kNotFound;
  if (it->second.size() > maxBytes) return FileStatus::kError;
  *contents = it->second;
  return FileStatus::kOk;
}

bool MemoryFileSystem::ListFiles(const std::string& dir, std::vector<std::string>* names,
                                 std::string* error) {
  names->clear();
  if (mUnreadable.count(dir)) return Refuse(error, "Permission denied");
  if (!IsDirectory(dir)) return Refuse(error, "No such file or directory");
  const std::string prefix = dir + "\\";
  for (auto it = mFiles.lower_bound(prefix);
       it != mFiles.end() && it->first.compare(0, prefix.size(), prefix) == 0; ++it) {
    const std::string name = it->first.substr(prefix.size());
    if (name.find('\\') == std::string::npos) names->push_back(name);
  }
  return true;
}

// Directories exist by what lies below them, so there is nothing to make.
bool MemoryFileSystem::MakeDirectories(const std::string& dir, std::string* error) {
  if (mFiles.count(dir) || mUnreadable.count(dir)) return Refuse(error, "Not a directory");
  return true;
}

bool MemoryFileSystem::WriteFile(const std::string& path, const std::string& contents, std::string* error) {
  if (mUnreadable.count(path)) return Refuse(error, "Permission denied");
  mFiles[path] = contents;
  return true;
}

bool MemoryFileSystem::RenameFile(const std::string& from, const std::string& to, std::string* error) {
  auto it = mFiles.find(from);
  if (it == mFiles.end()) return Refuse(error, "No such file or directory");
  if (mUnreadable.count(to)) return Refuse(error, "Permission denied");
  std::string contents = std::move(it->second);
  mFiles.erase(it);
  mFiles[to] = std::move(contents);
  return true;
}

bool MemoryFileSystem::RemoveFile(const std::string& path, std::string* error) {
  if (mUnreadable.count(path)) return Refuse(error, "Permission denied");
  return mFiles.erase(path) > 0 || Refuse(error, "No such file or directory");
}

}  // namespace jeerbox
