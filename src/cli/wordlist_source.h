// The plain-text form of a word-list file that authors edit, and the rules
// it shares with the scrambled form the program reads. Sources are 8-bit
// (Windows-1252) text; `jeer pack` turns them into System\ files and
// `jeer unpack` turns System\ files back into them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jeerbox {

// A line of a source file, as the author wrote it.
struct SourceLine {
  enum class Kind { kBlank, kComment, kHead, kData, kMarker };
  Kind kind = Kind::kBlank;
  // Comment: the whole line, ";" included. Head: the key. Data: the text,
  // without its escape. Blank and marker: empty.
  std::string text;
  int number = 0;  // 1-based line number in the source
};

// One finding, printed as "file:line: reason" (or "file: reason" when it
// concerns the whole file, line 0).
struct Diagnostic {
  std::string file;
  int line = 0;
  std::string reason;
  std::string ToString() const;
};

// A source file name split into family and number: "Misc.001.txt" ->
// "Misc", 1. False for any other name.
bool ParseSourceName(std::string_view name, std::string* family, int* number);

// The directive line that makes a file marked, and the escape that makes
// the rest of a line a data line whatever it begins with.
constexpr std::string_view kMarkerDirective = "@marked";
constexpr char kDataEscape = '\\';

// Splits source bytes into lines at LF, taking a CR right in front of the
// LF as part of the line end, and classifies each. A line that the format
// can't express is reported and left out.
std::vector<SourceLine> ParseSource(const std::string& fileName, std::string_view bytes,
                                    std::vector<Diagnostic>* diagnostics);

// The source line of a data text: escaped when it would otherwise read as
// something else.
std::string DataSourceLine(const std::string& text);

// The reason a data text can't be stored, or "" when it can: the reader
// must get back exactly this text from its stored form.
std::string DataLineProblem(const std::string& text);

// The reason a key can't be a head in a file of `family`, or "".
std::string KeyProblem(const std::string& key, const std::string& family);

}  // namespace jeerbox
