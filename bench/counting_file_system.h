// The real file system with a tally of reads per path: shows how often a
// sentence opens each file of its family.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace jeerbox::bench {

class CountingFileSystem : public IFileSystem {
 public:
  bool FileExists(const std::string& path) override { return mReal.FileExists(path); }
  FileStatus ReadFile(const std::string& path, std::string* contents, size_t maxBytes) override {
    const FileStatus status = mReal.ReadFile(path, contents, maxBytes);
    if (status == FileStatus::kOk) ++mReads[path];
    return status;
  }
  bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error) override {
    return mReal.ListFiles(dir, names, error);
  }
  bool MakeDirectories(const std::string& dir, std::string* error) override {
    return mReal.MakeDirectories(dir, error);
  }
  bool WriteFile(const std::string& path, const std::string& contents, std::string* error) override {
    return mReal.WriteFile(path, contents, error);
  }
  bool RenameFile(const std::string& from, const std::string& to, std::string* error) override {
    return mReal.RenameFile(from, to, error);
  }
  bool RemoveFile(const std::string& path, std::string* error) override {
    return mReal.RemoveFile(path, error);
  }

  void Reset() { mReads.clear(); }
  size_t FilesRead() const { return mReads.size(); }
  int MostReadsOfOneFile() const {
    int most = 0;
    for (const auto& [path, count] : mReads) most = std::max(most, count);
    return most;
  }

 private:
  IFileSystem& mReal = HostFileSystem();
  std::map<std::string, int> mReads;
};

}  // namespace jeerbox::bench
