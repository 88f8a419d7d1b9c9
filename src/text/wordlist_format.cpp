#include "text/wordlist_format.h"

#include "text/MSimpleCrypto.h"
#include "text/find_bytes.h"

namespace jeerbox {

std::vector<std::string_view> SplitCrLf(std::string_view bytes) {
  std::vector<std::string_view> lines;
  ForEachCrLfPiece(bytes, [&lines](std::string_view piece) {
    lines.push_back(piece);
    return true;
  });
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

bool IsHeadLine(std::string_view line) {
  return line.size() >= 2 && line.front() == '[' && line.back() == ']';
}

std::string_view HeadKey(std::string_view headLine) { return headLine.substr(1, headLine.size() - 2); }

std::string HeadLine(std::string_view key) { return "[" + SimpleCrypt(key) + "]"; }

const std::string& StoredMarker() {
  static const std::string marker = SimpleCrypt("<XT>");
  return marker;
}

bool HoldsMarker(std::string_view fileBytes) {
  return FindBytes(fileBytes, StoredMarker()) != std::string_view::npos;
}

const std::string& MarkerCommentLine() {
  static const std::string line = ";" + StoredMarker();
  return line;
}

StoredLine ClassifyStoredLine(std::string_view line, bool inSection) {
  if (IsHeadLine(line)) return StoredLine::kHead;
  if (line == MarkerCommentLine() || (!inSection && line == StoredMarker())) return StoredLine::kMarker;
  switch (WhyDropped(line)) {
    case DroppedPiece::kEmpty:
      return StoredLine::kEmpty;
    case DroppedPiece::kComment:
      return StoredLine::kComment;
    case DroppedPiece::kLoneCr:
      return StoredLine::kLoneCr;
    case DroppedPiece::kBlanks:
      return StoredLine::kBlanks;
    case DroppedPiece::kNone:
      break;
  }
  return EndsSection(line) ? StoredLine::kStrayBracket : StoredLine::kData;
}

std::string KeyFamily(std::string_view key) { return std::string(key.substr(0, key.find('-'))); }

std::string NumberedFileName(std::string_view family, int number) {
  const std::string digits = "000" + std::to_string(number);
  return std::string(family) + "." + digits.substr(digits.size() - 3);
}

bool ParseNumberedFileName(std::string_view name, std::string* family, int* number) {
  const size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0 || name.size() - dot != 4) return false;
  int n = 0;
  for (char c : name.substr(dot + 1)) {
    if (c < '0' || c > '9') return false;
    n = n * 10 + (c - '0');
  }
  if (n == 0) return false;
  *family = name.substr(0, dot);
  *number = n;
  return true;
}

}  // namespace jeerbox
