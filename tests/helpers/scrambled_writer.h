// Builds text files in the scrambled, sectioned format: heads, data lines,
// comments and the marker, with CR LF line ends. Tests write their data
// with it instead of keeping scrambled blobs, and read it back as the
// program does.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"

namespace jeerbox::testing {

using KeyLines = std::vector<std::pair<std::string, std::vector<std::string>>>;

class ScrambledWriter {
 public:
  // A head for `key`, preceded by an empty line unless it opens the file.
  ScrambledWriter& Section(const std::string& key) {
    if (!mBytes.empty()) Blank();
    return Raw("[" + SimpleCrypt(key) + "]");
  }
  // One section per key, in order.
  ScrambledWriter& Sections(const KeyLines& lists) {
    for (const auto& [key, lines] : lists) Section(key).Lines(lines);
    return *this;
  }
  ScrambledWriter& Lines(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) Line(text);
    return *this;
  }
  ScrambledWriter& Line(const std::string& text) { return Raw(SimpleCrypt(text)); }
  ScrambledWriter& Comment(const std::string& text) { return Raw(";" + text); }
  ScrambledWriter& Blank() { return Raw(""); }
  ScrambledWriter& Marker() { return Raw(SimpleCrypt("<XT>")); }
  // Stored as given, not scrambled, with CR LF behind.
  ScrambledWriter& Raw(const std::string& bytes) {
    mBytes += bytes + "\r\n";
    return *this;
  }
  ScrambledWriter& NoFinalLineEnd() {
    mBytes.resize(mBytes.size() - 2);
    return *this;
  }

  const std::string& Bytes() const { return mBytes; }

 private:
  std::string mBytes;
};

// The key's line list as the program reads it from gAppPath's System,
// unscrambled: one empty line when the program finds nothing.
inline std::vector<std::string> ReadKeyLines(const std::string& key) {
  CTextGenerator generator;  // holds the files the lines point into
  std::vector<std::string> lines;
  for (std::string_view line : generator.GetCacheItem(key)) lines.push_back(SimpleCrypt(line));
  return lines;
}

}  // namespace jeerbox::testing
