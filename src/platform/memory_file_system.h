// Files held in memory, by their backslash paths: for tests, benchmarks
// and fuzzers that need a program directory without a disk.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/file_system.h"

namespace jeerbox {

class MemoryFileSystem : public IFileSystem {
 public:
  void Write(const std::string& path, const std::string& contents) { mFiles[path] = contents; }
  void Remove(const std::string& path) { mFiles.erase(path); }
  // Exists, but every read and write fails (a directory, or no permission).
  void AddUnreadable(const std::string& path) { mUnreadable.insert(path); }
  // The file's contents, or "" when it doesn't exist.
  std::string Contents(const std::string& path) const;

  bool FileExists(const std::string& path) override;
  FileStatus ReadFile(const std::string& path, std::string* contents) override;
  bool ReplaceFile(const std::string& path, const std::string& contents) override;

 private:
  std::map<std::string, std::string> mFiles;
  std::set<std::string> mUnreadable;
};

// Puts a file system in place for the life of the object.
class ScopedFileSystem {
 public:
  explicit ScopedFileSystem(IFileSystem* fs) : mPrevious(SetFileSystem(fs)) {}
  ~ScopedFileSystem() { SetFileSystem(mPrevious); }
  ScopedFileSystem(const ScopedFileSystem&) = delete;
  ScopedFileSystem& operator=(const ScopedFileSystem&) = delete;

 private:
  IFileSystem* mPrevious;
};

}  // namespace jeerbox
