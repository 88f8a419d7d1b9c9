// Files held in memory, by their backslash paths: for tests, benchmarks
// and fuzzers that need a program directory without a disk. Directories
// exist implicitly wherever a file lies below them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "support/MSimpleIO.h"

namespace jeerbox {

class MemoryFileSystem : public IFileSystem {
 public:
  void Write(const std::string& path, const std::string& contents) { mFiles[path] = contents; }
  void Remove(const std::string& path) { mFiles.erase(path); }
  // Exists, but every read and write fails (a directory, or no permission).
  void AddUnreadable(const std::string& path) { mUnreadable.insert(path); }
  // The file's contents, or "" when it doesn't exist.
  std::string Contents(const std::string& path) const;
  const std::map<std::string, std::string>& Files() const { return mFiles; }

  bool FileExists(const std::string& path) override;
  FileStatus ReadFile(const std::string& path, std::string* contents, size_t maxBytes) override;
  bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error) override;
  bool MakeDirectories(const std::string& dir, std::string* error) override;
  bool WriteFile(const std::string& path, const std::string& contents, std::string* error) override;
  bool RenameFile(const std::string& from, const std::string& to, std::string* error) override;
  bool RemoveFile(const std::string& path, std::string* error) override;

 private:
  bool IsDirectory(const std::string& path) const;

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
