#include "helpers/fake_file_system.h"

namespace jeerbox::testing {

FakeFileSystem::FakeFileSystem() : mPrevious(SetFileSystem(this)) {}

FakeFileSystem::~FakeFileSystem() { SetFileSystem(mPrevious); }

bool FakeFileSystem::FileExists(const std::string& path) {
  mTouched.push_back(path);
  return MemoryFileSystem::FileExists(path);
}

FileStatus FakeFileSystem::ReadFile(const std::string& path, std::string* contents, size_t maxBytes) {
  mTouched.push_back(path);
  const FileStatus status = MemoryFileSystem::ReadFile(path, contents, maxBytes);
  if (status == FileStatus::kOk) ++mReads[path];
  return status;
}

bool FakeFileSystem::WriteFile(const std::string& path, const std::string& contents, std::string* error) {
  mTouched.push_back(path);
  return MemoryFileSystem::WriteFile(path, contents, error);
}

int FakeFileSystem::Reads(const std::string& path) const {
  auto it = mReads.find(path);
  return it == mReads.end() ? 0 : it->second;
}

void FakeFileSystem::ClearLog() {
  mReads.clear();
  mTouched.clear();
}

}  // namespace jeerbox::testing
