// Builds text files in the scrambled, sectioned format: heads, data lines,
// comments and the marker, with CR LF line ends. Tests write their data
// with it instead of keeping scrambled blobs.
#pragma once

#include <string>
#include <vector>

namespace jeerbox::testing {

class ScrambledWriter {
 public:
  // A head for `key`, preceded by an empty line unless it opens the file.
  ScrambledWriter& Section(const std::string& key);
  ScrambledWriter& Lines(const std::vector<std::string>& texts);
  ScrambledWriter& Line(const std::string& text);
  ScrambledWriter& Comment(const std::string& text);
  ScrambledWriter& Blank();
  ScrambledWriter& Marker();
  // Stored as given, not scrambled, with CR LF behind unless `eol` is false.
  ScrambledWriter& Raw(const std::string& bytes, bool eol = true);
  // Drops the file's last CR LF.
  ScrambledWriter& NoFinalLineEnd();

  const std::string& Bytes() const { return mBytes; }

 private:
  std::string mBytes;
};

}  // namespace jeerbox::testing
