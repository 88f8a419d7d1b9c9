// The Windows file system: file search for existence, one CreateFileA and
// ReadFile per file, writes flushed before they are moved into place.
// Paths go to the A calls as they are, backslashes and all.
#include "platform/file_system.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <new>

#include "platform/win32/system_error.h"

namespace jeerbox {
namespace {

bool Fail(std::string* error) {
  if (error) *error = SystemErrorText(GetLastError());
  return false;
}

class Handle {
 public:
  explicit Handle(HANDLE handle) : mHandle(handle) {}
  ~Handle() {
    if (Valid()) CloseHandle(mHandle);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  bool Valid() const { return mHandle != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return mHandle; }
  // Closes now, so that a failing close can be told.
  bool Close() {
    const bool closed = CloseHandle(mHandle) != 0;
    mHandle = INVALID_HANDLE_VALUE;
    return closed;
  }

 private:
  HANDLE mHandle;
};

// One read of size + 1 bytes normally ends it; a file that grew meanwhile
// is read on to its end, or to `maxBytes`.
bool ReadAll(HANDLE file, std::string* contents, size_t maxBytes) {
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file, &size) || size.QuadPart < 0) return false;
  if (static_cast<uint64_t>(size.QuadPart) > maxBytes) return false;
  contents->resize(static_cast<size_t>(size.QuadPart) + 1);
  size_t done = 0;
  for (;;) {
    const size_t room = std::min<size_t>(contents->size() - done, 1u << 30);
    DWORD n = 0;
    if (!::ReadFile(file, &(*contents)[done], static_cast<DWORD>(room), &n, nullptr)) return false;
    done += n;
    if (n == 0) break;
    if (done > maxBytes) return false;
    if (done == contents->size()) contents->resize(done + 4096);
  }
  contents->resize(done);
  return true;
}

bool WriteAll(HANDLE file, const std::string& contents) {
  size_t done = 0;
  while (done < contents.size()) {
    const size_t chunk = std::min<size_t>(contents.size() - done, 1u << 30);
    DWORD n = 0;
    if (!::WriteFile(file, contents.data() + done, static_cast<DWORD>(chunk), &n, nullptr) || n == 0)
      return false;
    done += n;
  }
  return true;
}

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

class Win32FileSystem : public IFileSystem {
 public:
  bool FileExists(const std::string& path) override {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return false;
    FindClose(search);
    return true;
  }

  FileStatus ReadFile(const std::string& path, std::string* contents, size_t maxBytes) override try {
    contents->clear();
    Handle file(CreateFileA(path.c_str(), GENERIC_READ,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.Valid()) {
      const DWORD error = GetLastError();
      return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? FileStatus::kNotFound
                                                                            : FileStatus::kError;
    }
    if (GetFileType(file.Get()) != FILE_TYPE_DISK || !ReadAll(file.Get(), contents, maxBytes)) {
      contents->clear();
      return FileStatus::kError;
    }
    return FileStatus::kOk;
  } catch (const std::bad_alloc&) {
    contents->clear();
    return FileStatus::kError;
  }

  bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error) override {
    names->clear();
    std::string pattern = dir;
    while (pattern.size() > 1 && IsSeparator(pattern.back())) pattern.pop_back();
    pattern += "\\*";
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_FILE_NOT_FOUND || Fail(error);
    do {
      if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names->emplace_back(found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    std::sort(names->begin(), names->end());
    return true;
  }

  // Each parent in turn; a drive or share that can't be made is no failure,
  // only the directory itself has to exist at the end.
  bool MakeDirectories(const std::string& dir, std::string* error) override {
    for (size_t i = 1; i < dir.size(); ++i) {
      if (IsSeparator(dir[i]) && !IsSeparator(dir[i - 1]))
        CreateDirectoryA(dir.substr(0, i).c_str(), nullptr);
    }
    CreateDirectoryA(dir.c_str(), nullptr);
    const DWORD attributes = GetFileAttributesA(dir.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return Fail(error);
    if (attributes & FILE_ATTRIBUTE_DIRECTORY) return true;
    SetLastError(ERROR_DIRECTORY);
    return Fail(error);
  }

  bool WriteFile(const std::string& path, const std::string& contents, std::string* error) override {
    Handle file(
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.Valid()) return Fail(error);
    if (!WriteAll(file.Get(), contents) || !FlushFileBuffers(file.Get())) return Fail(error);
    return file.Close() || Fail(error);
  }

  bool RenameFile(const std::string& from, const std::string& to, std::string* error) override {
    return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0 || Fail(error);
  }

  bool RemoveFile(const std::string& path, std::string* error) override {
    return DeleteFileA(path.c_str()) != 0 || Fail(error);
  }
};

}  // namespace

std::string NativePath(const std::string& path) { return path; }

IFileSystem& HostFileSystem() {
  static Win32FileSystem files;
  return files;
}

}  // namespace jeerbox
