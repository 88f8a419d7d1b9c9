// The POSIX file system: stat for existence, one open/pread/close per file
// of usual size, writes flushed before they are renamed into place.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <new>

#include "platform/file_system.h"

namespace jeerbox {
namespace {

bool Fail(std::string* error) {
  if (error) *error = std::strerror(errno);
  return false;
}

// The first read asks for this much, into the stack: a word list is about
// 100 KB, and a file shorter than this is read by that one call.
constexpr size_t kFirstRead = size_t{120} << 10;

// A regular file read on behind its first `done` bytes, to its end or to
// the limit, past which it counts as unreadable. One read of size + 1 bytes
// normally ends it: a short read of a regular file means end of file. A
// file that grew meanwhile is read on.
bool ReadRest(int fd, std::string* contents, size_t done, size_t maxBytes) {
  struct stat info {};
  if (fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) return false;
  const auto expected = static_cast<size_t>(info.st_size);
  if (expected > maxBytes) return false;
  contents->resize(std::max(expected, done) + 1);
  for (;;) {
    const ssize_t n = pread(fd, &(*contents)[done], contents->size() - done, static_cast<off_t>(done));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    done += static_cast<size_t>(n);
    if (n == 0 || done == expected) break;
    if (done > maxBytes) return false;
    if (done == contents->size()) contents->resize(done + 4096);
  }
  contents->resize(done);
  return true;
}

// No fstat in front of the read: a pipe, socket or terminal can't be read
// at an offset (ESPIPE), nor a directory (EISDIR), so what answers a pread
// at offset 0 with fewer bytes than asked is a regular file at its end. A
// read that fills the room, or an empty one, doesn't tell: then fstat
// decides, and only a regular file within the limit is read on.
bool ReadAll(int fd, std::string* contents, size_t maxBytes) {
  std::array<char, kFirstRead> first;  // not cleared: the read fills what counts
  const size_t room = maxBytes < kFirstRead ? maxBytes + 1 : kFirstRead;
  ssize_t n = 0;
  do n = pread(fd, first.data(), room, 0);
  while (n < 0 && errno == EINTR);
  if (n < 0) return false;
  const auto done = static_cast<size_t>(n);
  contents->assign(first.data(), done);
  return (done != 0 && done < room) || ReadRest(fd, contents, done, maxBytes);
}

bool WriteAll(int fd, const std::string& contents) {
  size_t done = 0;
  while (done < contents.size()) {
    const ssize_t n = write(fd, contents.data() + done, contents.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<size_t>(n);
  }
  return true;
}

class PosixFileSystem : public IFileSystem {
 public:
  bool FileExists(const std::string& path) override {
    struct stat info {};
    return stat(NativePath(path).c_str(), &info) == 0;
  }

  // O_NONBLOCK: opening a named pipe would otherwise wait for a writer, and
  // a device that honours it doesn't wait either. What isn't a regular file
  // fails the first read or is refused on fstat (see ReadAll).
  FileStatus ReadFile(const std::string& path, std::string* contents, size_t maxBytes) override {
    contents->clear();
    try {
      const int fd = open(NativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
      if (fd < 0) return errno == ENOENT || errno == ENOTDIR ? FileStatus::kNotFound : FileStatus::kError;
      bool ok = false;
      try {
        ok = ReadAll(fd, contents, maxBytes);
      } catch (const std::bad_alloc&) {
      }
      close(fd);
      if (ok) return FileStatus::kOk;
    } catch (const std::bad_alloc&) {
    }
    std::string().swap(*contents);
    return FileStatus::kError;
  }

  bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error) override {
    names->clear();
    const std::string native = NativePath(dir);
    DIR* stream = opendir(native.c_str());
    if (stream == nullptr) return Fail(error);
    while (const dirent* entry = readdir(stream)) {
      struct stat info {};
      const std::string name = entry->d_name;
      if (stat((native + "/" + name).c_str(), &info) == 0 && S_ISREG(info.st_mode)) names->push_back(name);
    }
    closedir(stream);
    std::sort(names->begin(), names->end());
    return true;
  }

  bool MakeDirectories(const std::string& dir, std::string* error) override {
    const std::string native = NativePath(dir);
    for (size_t slash = native.find('/', 1);; slash = native.find('/', slash + 1)) {
      const std::string part = native.substr(0, slash);
      if (!part.empty() && mkdir(part.c_str(), 0755) != 0 && errno != EEXIST) return Fail(error);
      if (slash == std::string::npos) break;
    }
    struct stat info {};
    if (stat(native.c_str(), &info) != 0) return Fail(error);
    if (S_ISDIR(info.st_mode)) return true;
    errno = ENOTDIR;
    return Fail(error);
  }

  bool WriteFile(const std::string& path, const std::string& contents, std::string* error) override {
    const int fd = open(NativePath(path).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) return Fail(error);
    const bool ok = WriteAll(fd, contents) && fsync(fd) == 0;
    const int saved = errno;
    if (close(fd) != 0 || !ok) {
      if (!ok) errno = saved;
      return Fail(error);
    }
    return true;
  }

  bool RenameFile(const std::string& from, const std::string& to, std::string* error) override {
    return rename(NativePath(from).c_str(), NativePath(to).c_str()) == 0 || Fail(error);
  }

  bool RemoveFile(const std::string& path, std::string* error) override {
    return unlink(NativePath(path).c_str()) == 0 || Fail(error);
  }
};

}  // namespace

std::string NativePath(const std::string& path) {
  std::string native = path;
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

IFileSystem& HostFileSystem() {
  static PosixFileSystem files;
  return files;
}

}  // namespace jeerbox
