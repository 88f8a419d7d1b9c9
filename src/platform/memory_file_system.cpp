#include "platform/memory_file_system.h"

namespace jeerbox {

std::string MemoryFileSystem::Contents(const std::string& path) const {
  auto it = mFiles.find(path);
  return it == mFiles.end() ? std::string() : it->second;
}

bool MemoryFileSystem::FileExists(const std::string& path) {
  return mFiles.count(path) > 0 || mUnreadable.count(path) > 0;
}

FileStatus MemoryFileSystem::ReadFile(const std::string& path, std::string* contents) {
  contents->clear();
  if (mUnreadable.count(path)) return FileStatus::kError;
  auto it = mFiles.find(path);
  if (it == mFiles.end()) return FileStatus::kNotFound;
  *contents = it->second;
  return FileStatus::kOk;
}

bool MemoryFileSystem::ReplaceFile(const std::string& path, const std::string& contents) {
  if (mUnreadable.count(path)) return false;
  mFiles[path] = contents;
  return true;
}

}  // namespace jeerbox
