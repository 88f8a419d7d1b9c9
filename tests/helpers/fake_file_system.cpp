#include "helpers/fake_file_system.h"

namespace jeerbox::testing {

FakeFileSystem::FakeFileSystem() : mPrevious(SetFileSystem(this)) {}

FakeFileSystem::~FakeFileSystem() { SetFileSystem(mPrevious); }

bool FakeFileSystem::FileExists(const std::string& path) {
  mTouched.push_back(path);
  return mFiles.count(path) > 0 || mUnreadable.count(path) > 0;
}

FileStatus FakeFileSystem::ReadFile(const std::string& path, std::string* contents) {
  mTouched.push_back(path);
  contents->clear();
  if (mUnreadable.count(path)) return FileStatus::kError;
  auto it = mFiles.find(path);
  if (it == mFiles.end()) return FileStatus::kNotFound;
  ++mReads[path];
  *contents = it->second;
  return FileStatus::kOk;
}

bool FakeFileSystem::ReplaceFile(const std::string& path, const std::string& contents) {
  mTouched.push_back(path);
  if (mUnreadable.count(path)) return false;
  mFiles[path] = contents;
  return true;
}

std::string FakeFileSystem::Contents(const std::string& path) const {
  auto it = mFiles.find(path);
  return it == mFiles.end() ? std::string() : it->second;
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
