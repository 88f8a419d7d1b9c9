#include "cli/tool_files.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "platform/file_system.h"

namespace jeerbox {
namespace fs = std::filesystem;

bool ListFiles(const std::string& dir, std::vector<std::string>* names, std::string* error) {
  names->clear();
  std::error_code ec;
  fs::directory_iterator it(dir, ec);
  if (ec) {
    *error = dir + ": " + ec.message();
    return false;
  }
  for (const fs::directory_entry& entry : it) {
    std::error_code typeError;
    if (entry.is_regular_file(typeError)) names->push_back(entry.path().filename().string());
  }
  std::sort(names->begin(), names->end());
  return true;
}

// Through the host's guarded read, as the program reads: a pipe never
// blocks, and a file too large for a word list is refused, not allocated.
bool ReadFileBytes(const std::string& path, std::string* bytes, std::string* error) {
  switch (HostFileSystem().ReadFile(path, bytes, kMaxWordListBytes)) {
    case FileStatus::kOk:
      return true;
    case FileStatus::kNotFound:
      *error = path + ": can't be opened";
      return false;
    case FileStatus::kError:
      break;
  }
  *error = path + ": can't be read (not a readable file of at most " +
           std::to_string(kMaxWordListBytes >> 20) + " MB)";
  return false;
}

namespace {

bool WriteOne(const fs::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  return static_cast<bool>(out);
}

}  // namespace

bool WriteFilesAtomically(const std::string& dir, const std::vector<NamedFile>& files, std::string* error) {
  std::error_code ec;
  fs::create_directories(dir, ec);
  if (ec) {
    *error = dir + ": " + ec.message();
    return false;
  }
  const std::string suffix = ".jeer-tmp-" + std::to_string(getpid());
  std::vector<fs::path> temps;
  for (const NamedFile& file : files) {
    temps.push_back(fs::path(dir) / ("." + file.name + suffix));
    if (!WriteOne(temps.back(), file.bytes)) {
      *error = temps.back().string() + ": can't be written";
      for (const fs::path& temp : temps) fs::remove(temp, ec);
      return false;
    }
  }
  for (size_t i = 0; i < files.size(); ++i) {
    fs::rename(temps[i], fs::path(dir) / files[i].name, ec);
    if (ec) {
      *error = (fs::path(dir) / files[i].name).string() + ": " + ec.message();
      for (size_t j = i; j < temps.size(); ++j) fs::remove(temps[j], ec);
      return false;
    }
  }
  return true;
}

bool RemoveFiles(const std::string& dir, const std::vector<std::string>& names, std::string* error) {
  for (const std::string& name : names) {
    std::error_code ec;
    fs::remove(fs::path(dir) / name, ec);
    if (ec) {
      *error = (fs::path(dir) / name).string() + ": " + ec.message();
      return false;
    }
  }
  return true;
}

std::vector<std::string_view> SplitCrLf(std::string_view bytes) {
  std::vector<std::string_view> lines;
  size_t start = 0;
  while (start < bytes.size()) {
    size_t end = bytes.find("\r\n", start);
    if (end == std::string_view::npos) end = bytes.size();
    lines.push_back(bytes.substr(start, end - start));
    start = end + 2;
  }
  return lines;
}

}  // namespace jeerbox
