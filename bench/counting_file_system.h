// The real file system with a tally of reads per path: shows how often a
// sentence opens each file of its family.
#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "platform/file_system.h"

namespace jeerbox::bench {

class CountingFileSystem : public IFileSystem {
 public:
  bool FileExists(const std::string& path) override { return mReal.FileExists(path); }
  FileStatus ReadFile(const std::string& path, std::string* contents) override {
    const FileStatus status = mReal.ReadFile(path, contents);
    if (status == FileStatus::kOk) ++mReads[path];
    return status;
  }
  bool ReplaceFile(const std::string& path, const std::string& contents) override {
    return mReal.ReplaceFile(path, contents);
  }

  void Reset() { mReads.clear(); }
  size_t FilesRead() const { return mReads.size(); }
  int MostReadsOfOneFile() const {
    int most = 0;
    for (const auto& [path, count] : mReads) most = std::max(most, count);
    return most;
  }

 private:
  RealFileSystem mReal;
  std::map<std::string, int> mReads;
};

}  // namespace jeerbox::bench
