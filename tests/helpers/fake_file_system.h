// Files held in memory by their backslash paths, for tests, benchmarks and
// fuzzers that need a program directory without a disk. Directories exist
// wherever a file lies below them; they can't be listed or made (the tools
// that do are tested on disk). While it lives it stands in for the
// program's file system, and it writes down what was asked of it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "support/MSimpleIO.h"

namespace jeerbox {

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

namespace testing {

class FakeFileSystem : public IFileSystem {
 public:
  void Write(const std::string& path, const std::string& contents) { mFiles[path] = contents; }
  void Remove(const std::string& path) { mFiles.erase(path); }
  // Exists, but every read and write fails (a directory, or no permission).
  void AddUnreadable(const std::string& path) { mUnreadable.insert(path); }
  // The file's contents, or "" when it doesn't exist.
  std::string Contents(const std::string& path) const { return mFiles.count(path) ? mFiles.at(path) : ""; }

  // Successful reads of the path.
  int Reads(const std::string& path) const { return mReads.count(path) ? mReads.at(path) : 0; }
  // Every path asked about, read or written, in order.
  const std::vector<std::string>& Touched() const { return mTouched; }
  void ClearLog() {
    mReads.clear();
    mTouched.clear();
  }

  bool FileExists(const std::string& path) override {
    mTouched.push_back(path);
    return mFiles.count(path) > 0 || mUnreadable.count(path) > 0 || IsDirectory(path);
  }
  FileStatus ReadFile(const std::string& path, std::string* contents, size_t maxBytes) override {
    mTouched.push_back(path);
    contents->clear();
    if (mUnreadable.count(path) || IsDirectory(path)) return FileStatus::kError;
    auto it = mFiles.find(path);
    if (it == mFiles.end()) return FileStatus::kNotFound;
    if (it->second.size() > maxBytes) return FileStatus::kError;
    *contents = it->second;
    ++mReads[path];
    return FileStatus::kOk;
  }
  bool WriteFile(const std::string& path, const std::string& contents, std::string* error) override {
    mTouched.push_back(path);
    if (mUnreadable.count(path)) return Denied(error);
    mFiles[path] = contents;
    return true;
  }
  bool ListFiles(const std::string&, std::vector<std::string>*, std::string*) override { return false; }
  bool MakeDirectories(const std::string&, std::string*) override { return false; }
  bool RenameFile(const std::string& from, const std::string& to, std::string* error) override {
    if (mFiles.count(from) == 0 || mUnreadable.count(to)) return Denied(error);
    mFiles[to] = mFiles[from];
    mFiles.erase(from);
    return true;
  }
  bool RemoveFile(const std::string& path, std::string*) override { return mFiles.erase(path) > 0; }

 private:
  bool IsDirectory(const std::string& path) const {
    auto it = mFiles.lower_bound(path + "\\");
    return it != mFiles.end() && it->first.compare(0, path.size() + 1, path + "\\") == 0;
  }
  static bool Denied(std::string* error) {
    if (error) *error = "Permission denied";
    return false;
  }

  std::map<std::string, std::string> mFiles;
  std::set<std::string> mUnreadable;
  std::map<std::string, int> mReads;
  std::vector<std::string> mTouched;
  ScopedFileSystem mInPlace{this};
};

}  // namespace testing
}  // namespace jeerbox
