// The portable profile reader: profile files parsed by hand, read and
// written through the program's file system.
#include "support/profile_file.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <vector>

#include "support/MSimpleIO.h"

namespace jeerbox {
namespace {

// What Windows takes for blanks around names and values: white space, and
// ^Z, the old end-of-file mark.
constexpr char kBlanks[] = " \t\r\n\v\f\x1a";

std::string TrimBlanks(const std::string& text) {
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string::npos) return std::string();
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool SameName(const std::string& a, const std::string& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
         });
}

constexpr const char* kUtf8Bom = "\xef\xbb\xbf";

// CR LF, a lone CR and a lone LF each end a line, as for Windows. A UTF-8
// byte order mark in front is no part of the first line.
std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = text.compare(0, 3, kUtf8Bom) == 0 ? 3 : 0;
  while (start < text.size()) {
    size_t end = text.find_first_of("\r\n", start);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(start, end - start));
    start = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
  }
  return lines;
}

// The section name of a head line, or false when the line is no head. The
// name runs to the line's last "]"; a line without one is no head.
bool SectionHead(const std::string& line, std::string* name) {
  const std::string trimmed = TrimBlanks(line);
  const size_t close = trimmed.rfind(']');
  if (trimmed.empty() || trimmed[0] != '[' || close == std::string::npos) return false;
  *name = TrimBlanks(trimmed.substr(1, close - 1));
  return true;
}

// The key and raw value of a "name=value" line; comments and other lines
// are no entries.
bool Entry(const std::string& line, std::string* key, std::string* value) {
  const std::string trimmed = TrimBlanks(line);
  if (trimmed.empty() || trimmed[0] == ';') return false;
  const size_t equals = trimmed.find('=');
  if (equals == std::string::npos) return false;
  *key = TrimBlanks(trimmed.substr(0, equals));
  *value = TrimBlanks(trimmed.substr(equals + 1));
  return true;
}

std::string Unquote(const std::string& value) {
  if (value.size() >= 2 && (value[0] == '"' || value[0] == '\'') && value.back() == value[0])
    return value.substr(1, value.size() - 2);
  return value;
}

// Index range [begin, end) of the section's entry lines; begin == npos when
// the section is missing. The first section of the name counts.
std::pair<size_t, size_t> FindSection(const std::vector<std::string>& lines, const std::string& section) {
  std::string name;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (!SectionHead(lines[i], &name) || !SameName(name, section)) continue;
    size_t end = i + 1;
    while (end < lines.size() && !SectionHead(lines[end], &name)) ++end;
    return {i + 1, end};
  }
  return {std::string::npos, 0};
}

int CopyOut(const std::string& value, char* buffer, int size) {
  if (buffer == nullptr || size <= 0) return 0;
  const size_t n = std::min(value.size(), static_cast<size_t>(size - 1));
  std::memcpy(buffer, value.data(), n);
  buffer[n] = '\0';
  return static_cast<int>(n);
}

}  // namespace

int PortableProfile::GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                              const std::string& defaultValue, char* buffer, int size,
                                              const std::string& fileName) {
  // Windows drops the default's trailing blanks, and the names' blanks.
  const std::string fallback = defaultValue.substr(0, defaultValue.find_last_not_of(' ') + 1);
  try {
    std::string text;
    if (CurrentFileSystem().ReadFile(fileName, &text, kMaxSettingsBytes) != FileStatus::kOk)
      return CopyOut(fallback, buffer, size);
    const std::vector<std::string> lines = SplitLines(text);
    const auto [begin, end] = FindSection(lines, TrimBlanks(section));
    std::string name, value;
    for (size_t i = begin; begin != std::string::npos && i < end; ++i) {
      if (!Entry(lines[i], &name, &value) || !SameName(name, TrimBlanks(key))) continue;
      return CopyOut(Unquote(value.substr(0, value.find('\0'))), buffer, size);  // C strings end at NUL
    }
  } catch (...) {  // memory, say: what can't be read gives the default
  }
  return CopyOut(fallback, buffer, size);
}

bool PortableProfile::WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                                 const std::string& value, const std::string& fileName) {
  std::string text;
  if (CurrentFileSystem().ReadFile(fileName, &text, kMaxSettingsBytes) == FileStatus::kError) return false;
  std::vector<std::string> lines = SplitLines(text);
  const std::string entry = key + "=" + value;
  auto [begin, end] = FindSection(lines, section);
  if (begin == std::string::npos) {
    if (!lines.empty() && !TrimBlanks(lines.back()).empty()) lines.emplace_back();
    lines.push_back("[" + section + "]");
    lines.push_back(entry);
  } else {
    std::string name, old;
    size_t at = std::string::npos;
    for (size_t i = begin; i < end && at == std::string::npos; ++i)
      if (Entry(lines[i], &name, &old) && SameName(name, key)) at = i;
    if (at != std::string::npos) {
      lines[at] = entry;
    } else {
      size_t insert = end;
      while (insert > begin && TrimBlanks(lines[insert - 1]).empty()) --insert;
      lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(insert), entry);
    }
  }
  // A byte order mark stays in front: dropped, it would let a second one
  // behind it start the first line, and change what every line reads as.
  std::string out = text.compare(0, 3, kUtf8Bom) == 0 ? kUtf8Bom : "";
  for (const std::string& line : lines) out += line + "\r\n";
  return ReplaceWholeFile(fileName, out);
}

}  // namespace jeerbox
