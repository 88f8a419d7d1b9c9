// File existence, whole-file reading and the path string helpers. Paths use
// the backslash as their only separator; the file system unit translates.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace jeerbox {

// The file system every file call of the program goes through: the host's,
// unless `fs` was put in its place (tests, tools). SetFileSystem returns the
// previous one; nullptr restores the host's. The caller keeps ownership.
IFileSystem& CurrentFileSystem();
IFileSystem* SetFileSystem(IFileSystem* fs);

// A file to replace as a whole: `contents` go to `temp` first, and `temp`
// is renamed onto `path`.
struct FileReplacement {
  std::string path;
  std::string temp;
  const std::string* contents;
};
// Where ReplaceFiles stopped: the temporary it couldn't write, or the file
// it couldn't rename into place, and the file system's reason.
struct ReplaceFailure {
  std::string path;
  bool writing = false;
  std::string reason;
};

// All or nothing: writes every temporary, and only when all are written
// renames each into place. On a failure the temporaries still there are
// removed; a failed write leaves every old file as it was. `failure` may be
// null.
bool ReplaceFiles(const std::vector<FileReplacement>& files, ReplaceFailure* failure);

// Replaces the file as a whole: readers see the old or the new contents,
// never a mix. False when it can't be written.
bool ReplaceWholeFile(const std::string& path, const std::string& contents);

bool FileExists(const std::string& path);

// The file's bytes, one character per byte, or "" when it is missing, can't
// be read, or holds more than `maxBytes` (by default a word list's limit).
std::string ReadWholeFile(const std::string& path, size_t maxBytes = kMaxWordListBytes);

// The part behind the last "\"; the path itself if there is none.
std::string StripPath(const std::string& path);
// The part in front of the last "."; the path itself if there is none.
std::string StripExtension(const std::string& path);
// StripExtension, then "." and the extension unless it is empty. One leading
// "." of the extension is dropped first, so "mp3" and ".mp3" agree.
std::string ChangeExtension(const std::string& path, const std::string& extension);
// The file name with neither directory nor extension.
std::string BaseName(const std::string& path);

// Removes blanks (0x20) from both ends, and nothing else.
std::string Trim(const std::string& text);
// The same on a text the caller gives up: trimmed where it lies.
std::string Trim(std::string&& text);

}  // namespace jeerbox
