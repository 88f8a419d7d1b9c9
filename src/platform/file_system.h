// File search, whole-file reading, and the few writes the word-list tools
// make. Callers build paths with backslashes; each host translates them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace jeerbox {

enum class FileStatus { kOk, kNotFound, kError };

// The largest file of each kind the program reads whole; a larger one counts
// as unreadable. Each is far above any real one: a word list is about 100 KB,
// a laugh 100 KB, the settings file 40 bytes.
constexpr size_t kMaxWordListBytes = size_t{64} << 20;  // a System\ file, or a source of jeer pack
constexpr size_t kMaxFamilyBytes = size_t{256} << 20;   // all files of one family together
constexpr size_t kMaxSettingsBytes = size_t{1} << 20;
constexpr size_t kMaxMediaBytes = size_t{16} << 20;

class IFileSystem {
 public:
  virtual ~IFileSystem() = default;
  // True when anything, a directory included, exists at `path`.
  virtual bool FileExists(const std::string& path) = 0;
  // Reads the whole file as bytes into *contents (cleared on failure). Only
  // a regular file of at most `maxBytes` is read: a pipe, socket, device or
  // directory, a larger file, or one that can't be held in memory is kError.
  // (On POSIX a device that can be read at an offset and answers the first
  // read with fewer bytes than asked passes for a file of those bytes.)
  // Never blocks on what it opens, and never throws.
  virtual FileStatus ReadFile(const std::string& path, std::string* contents, size_t maxBytes) = 0;

  // The calls below report a failure as false and, when `error` isn't null,
  // a reason for people ("Permission denied").
  // The names of the regular files directly in `dir`, sorted.
  virtual bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error) = 0;
  // Makes `dir` and any missing parents; true when it exists afterwards.
  virtual bool MakeDirectories(const std::string& dir, std::string* error) = 0;
  // Writes a new file at `path`, replacing what was there, and flushes it.
  virtual bool WriteFile(const std::string& path, const std::string& contents, std::string* error) = 0;
  // Moves `from` onto `to` in one step: `to` is the old or the new file,
  // never a mix.
  virtual bool RenameFile(const std::string& from, const std::string& to, std::string* error) = 0;
  virtual bool RemoveFile(const std::string& path, std::string* error) = 0;
};

// The host's file system, and a path as the host writes it ("\" becomes
// "/" on POSIX). Each host library defines both.
IFileSystem& HostFileSystem();
std::string NativePath(const std::string& path);

}  // namespace jeerbox
