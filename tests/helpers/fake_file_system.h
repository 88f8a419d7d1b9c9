// An in-memory file system that records what was asked of it, so tests can
// see which files were read, how often, and where a scan stopped.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace jeerbox::testing {

class FakeFileSystem : public IFileSystem {
 public:
  FakeFileSystem();  // installs itself as the current file system
  ~FakeFileSystem() override;

  void Write(const std::string& path, const std::string& contents) { mFiles[path] = contents; }
  void Remove(const std::string& path) { mFiles.erase(path); }
  // Exists, but every read fails (a directory, or no permission).
  void AddUnreadable(const std::string& path) { mUnreadable.insert(path); }

  bool FileExists(const std::string& path) override;
  FileStatus ReadFile(const std::string& path, std::string* contents) override;
  bool ReplaceFile(const std::string& path, const std::string& contents) override;
  // The file's contents, or "" when it doesn't exist.
  std::string Contents(const std::string& path) const;

  int Reads(const std::string& path) const;
  // Every path asked about, read or probed, in order.
  const std::vector<std::string>& Touched() const { return mTouched; }
  void ClearLog();

 private:
  std::map<std::string, std::string> mFiles;
  std::set<std::string> mUnreadable;
  std::map<std::string, int> mReads;
  std::vector<std::string> mTouched;
  IFileSystem* mPrevious;
};

}  // namespace jeerbox::testing
