// Reading the source form of a word-list file and the rules every stored
// line and key must keep to so that the reader gets back what was written.
#include "cli/wordlist_source.h"

#include "cli/escape.h"
#include "support/text_lines.h"
#include "text/MSimpleCrypto.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

bool IsBlanks(std::string_view text) {
  return !text.empty() && text.find_first_not_of(' ') == std::string_view::npos;
}

std::string Quoted(std::string_view text) { return "\"" + EscapeBytes(text) + "\""; }

SourceLine Classify(std::string_view line, int number, std::string* problem) {
  SourceLine out;
  out.number = number;
  if (line.find('\r') != std::string_view::npos || line.find('\n') != std::string_view::npos) {
    *problem = "the line holds a CR inside it (only LF or CR LF may end a line)";
  } else if (line.empty()) {
    out.kind = SourceLine::Kind::kBlank;
  } else if (IsBlanks(line)) {
    *problem = "a line of blanks: the reader drops it; leave the line empty instead";
  } else if (line.front() == ';') {
    out.kind = SourceLine::Kind::kComment;
    out.text = line;
  } else if (line.front() == '[') {
    if (line.size() < 3 || line.back() != ']')
      *problem = "a head is \"[\", the key and \"]\" on a line of their own";
    out.kind = SourceLine::Kind::kHead;
    out.text = line.substr(1, line.size() >= 2 ? line.size() - 2 : 0);
  } else if (line.front() == '@') {
    if (line != kMarkerDirective)
      *problem = "unknown directive " + Quoted(line) + " (the only one is " + std::string(kMarkerDirective) +
                 "; write \"\\" + std::string(line.substr(0, 1)) + "...\" for a data line)";
    out.kind = SourceLine::Kind::kMarker;
  } else {
    out.kind = SourceLine::Kind::kData;
    out.text = line.front() == kDataEscape ? line.substr(1) : line;
  }
  return out;
}

}  // namespace

std::string Diagnostic::ToString() const {
  return file + (line > 0 ? ":" + std::to_string(line) : std::string()) + ": " + reason;
}

bool ParseSourceName(std::string_view name, std::string* family, int* number) {
  constexpr std::string_view kExtension = ".txt";
  if (name.size() <= kExtension.size() || name.substr(name.size() - kExtension.size()) != kExtension)
    return false;
  return ParseNumberedFileName(name.substr(0, name.size() - kExtension.size()), family, number);
}

std::vector<SourceLine> ParseSource(const std::string& fileName, std::string_view bytes,
                                    std::vector<Diagnostic>* diagnostics) {
  std::vector<SourceLine> lines;
  int number = 0;
  for (std::string_view line : SplitLfLines(bytes)) {
    std::string problem;
    SourceLine parsed = Classify(line, ++number, &problem);
    if (problem.empty())
      lines.push_back(std::move(parsed));
    else
      diagnostics->push_back({fileName, number, problem});
  }
  return lines;
}

std::string DataSourceLine(const std::string& text) {
  const bool plain = !text.empty() && !IsBlanks(text) && text.front() != ';' && text.front() != '[' &&
                     text.front() != '@' && text.front() != kDataEscape;
  return plain ? text : kDataEscape + text;
}

std::string DataLineProblem(const std::string& text) {
  if (text.empty()) return "an empty data line: the reader would drop it";
  if (IsBlanks(text)) return "a data line of blanks only: it would read as nothing";
  if (text.find_first_of("\r\n") != std::string::npos) return "the data line holds a CR or LF";
  const std::string stored = SimpleCrypt(text);
  const std::string first = Quoted(text.substr(0, 1));
  switch (WhyDropped(stored)) {
    case DroppedPiece::kComment:
      return "a data line can't begin with " + first +
             ": its stored form would begin with \";\" and be dropped as a comment";
    case DroppedPiece::kBlanks:
      return "the stored form of " + Quoted(text) + " would be blanks only and be dropped";
    case DroppedPiece::kLoneCr:
      return "the stored form would be a lone CR and be dropped";
    case DroppedPiece::kEmpty:
    case DroppedPiece::kNone:
      break;
  }
  if (EndsSection(stored))
    return "a data line can't begin with " + first +
           ": its stored form would begin with \"[\" and end the section";
  const size_t crlf = stored.find(kLineEnd);
  if (crlf != std::string::npos)
    return "the stored form would hold CR LF (from " + Quoted(text.substr(crlf, 2)) + " at column " +
           std::to_string(crlf + 1) + ") and fall apart into two lines";
  return {};
}

std::string KeyProblem(const std::string& key, const std::string& family) {
  const size_t hyphen = key.find('-');
  if (hyphen == std::string::npos) return "key " + Quoted(key) + " has no hyphen, so it names no family";
  if (key.find('~') != std::string::npos)
    return "key " + Quoted(key) + " holds \"~\", which the reader's cache can't keep";
  if (KeyFamily(key) != family)
    return "key " + Quoted(key) + " belongs to family " + Quoted(KeyFamily(key)) +
           ", so the program would never look for it in a " + family + " file";
  if (SimpleCrypt(key).find(kLineEnd) != std::string::npos)
    return "the stored form of key " + Quoted(key) + " would hold CR LF and break its head";
  return {};
}

}  // namespace jeerbox
