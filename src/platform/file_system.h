// File search and whole-file reading. Callers build paths with backslashes;
// the real implementation translates them for the host.
#pragma once

#include <string>

namespace jeerbox {

enum class FileStatus { kOk, kNotFound, kError };

class IFileSystem {
 public:
  virtual ~IFileSystem() = default;
  // True when anything, a directory included, exists at `path`.
  virtual bool FileExists(const std::string& path) = 0;
  // Reads the whole file as bytes into *contents (cleared on failure).
  virtual FileStatus ReadFile(const std::string& path, std::string* contents) = 0;
  // Replaces the file as a whole: readers see the old or the new contents,
  // never a mix. False when it can't be written.
  virtual bool ReplaceFile(const std::string& path, const std::string& contents) = 0;
};

// POSIX: "\" becomes "/", nothing else changes.
class RealFileSystem : public IFileSystem {
 public:
  bool FileExists(const std::string& path) override;
  FileStatus ReadFile(const std::string& path, std::string* contents) override;
  bool ReplaceFile(const std::string& path, const std::string& contents) override;
};

std::string NativePath(const std::string& path);

IFileSystem& CurrentFileSystem();

// Puts `fs` in place of the real file system (nullptr restores it) and
// returns the previous one. The caller keeps ownership.
IFileSystem* SetFileSystem(IFileSystem* fs);

}  // namespace jeerbox
