// The POSIX file system: stat for existence, one open/read/close per file.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "platform/file_system.h"

namespace jeerbox {
namespace {

IFileSystem* gFileSystem = nullptr;

// One read of size + 1 bytes normally ends it: a short read of a regular
// file means end of file. A file that grew meanwhile is read on to its end.
bool ReadAll(int fd, std::string* contents) {
  struct stat info {};
  if (fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) return false;
  const auto expected = static_cast<size_t>(info.st_size);
  contents->resize(expected + 1);
  size_t done = 0;
  for (;;) {
    ssize_t n = read(fd, &(*contents)[done], contents->size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    done += static_cast<size_t>(n);
    if (n == 0 || done == expected) break;
    if (done == contents->size()) contents->resize(done + 4096);
  }
  contents->resize(done);
  return true;
}

}  // namespace

std::string NativePath(const std::string& path) {
  std::string native = path;
  for (char& c : native)
    if (c == '\\') c = '/';
  return native;
}

bool RealFileSystem::FileExists(const std::string& path) {
  struct stat info {};
  return stat(NativePath(path).c_str(), &info) == 0;
}

FileStatus RealFileSystem::ReadFile(const std::string& path, std::string* contents) {
  contents->clear();
  int fd = open(NativePath(path).c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return errno == ENOENT || errno == ENOTDIR ? FileStatus::kNotFound : FileStatus::kError;
  bool ok = ReadAll(fd, contents);
  close(fd);
  if (!ok) contents->clear();
  return ok ? FileStatus::kOk : FileStatus::kError;
}

// Written beside the target, flushed, then renamed over it.
bool RealFileSystem::ReplaceFile(const std::string& path, const std::string& contents) {
  const std::string target = NativePath(path);
  std::string temp = target + ".XXXXXX";
  const int fd = mkstemp(temp.data());
  if (fd < 0) return false;
  size_t done = 0;
  bool ok = true;
  while (ok && done < contents.size()) {
    const ssize_t n = write(fd, contents.data() + done, contents.size() - done);
    if (n < 0 && errno == EINTR) continue;
    ok = n > 0;
    if (ok) done += static_cast<size_t>(n);
  }
  ok = ok && fchmod(fd, 0644) == 0 && fsync(fd) == 0;
  ok = close(fd) == 0 && ok;
  ok = ok && rename(temp.c_str(), target.c_str()) == 0;
  if (!ok) unlink(temp.c_str());
  return ok;
}

IFileSystem& CurrentFileSystem() {
  static RealFileSystem real;
  return gFileSystem ? *gFileSystem : real;
}

IFileSystem* SetFileSystem(IFileSystem* fs) {
  IFileSystem* previous = gFileSystem;
  gFileSystem = fs;
  return previous;
}

}  // namespace jeerbox
