#include "helpers/fake_file_system.h"

namespace jeerbox::testing {

bool FakeFileSystem::IsDirectory(const std::string& path) const {
  auto it = mFiles.lower_bound(path + "\\");
  return it != mFiles.end() && it->first.compare(0, path.size() + 1, path + "\\") == 0;
}

bool FakeFileSystem::FileExists(const std::string& path) {
  mTouched.push_back(path);
  return mFiles.count(path) > 0 || mUnreadable.count(path) > 0 || IsDirectory(path);
}

FileStatus FakeFileSystem::ReadFile(const std::string& path, std::string* contents, size_t maxBytes) {
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

bool FakeFileSystem::WriteFile(const std::string& path, const std::string& contents, std::string* error) {
  mTouched.push_back(path);
  if (mUnreadable.count(path)) {
    if (error) *error = "Permission denied";
    return false;
  }
  mFiles[path] = contents;
  return true;
}

bool FakeFileSystem::RenameFile(const std::string& from, const std::string& to, std::string* error) {
  if (mFiles.count(from) == 0 || mUnreadable.count(to)) {
    if (error) *error = "Permission denied";
    return false;
  }
  mFiles[to] = mFiles[from];
  mFiles.erase(from);
  return true;
}

}  // namespace jeerbox::testing
