// An in-memory file system that records what was asked of it, so tests can
// see which files were read, how often, and where a scan stopped. It puts
// itself in place of the current file system while it lives.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "helpers/memory_file_system.h"

namespace jeerbox::testing {

class FakeFileSystem : public MemoryFileSystem {
 public:
  FakeFileSystem();
  ~FakeFileSystem() override;

  bool FileExists(const std::string& path) override;
  FileStatus ReadFile(const std::string& path, std::string* contents, size_t maxBytes) override;
  bool WriteFile(const std::string& path, const std::string& contents, std::string* error) override;

  // Successful reads of the path.
  int Reads(const std::string& path) const;
  // Every path asked about, read, probed or written, in order.
  const std::vector<std::string>& Touched() const { return mTouched; }
  void ClearLog();

 private:
  std::map<std::string, int> mReads;
  std::vector<std::string> mTouched;
  IFileSystem* mPrevious;
};

}  // namespace jeerbox::testing
