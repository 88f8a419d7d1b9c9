// Section reading and the template passes.
#include "text/CTextUtils.h"

#include <algorithm>

#include "support/MSimpleIO.h"
#include "support/random.h"
#include "text/MSimpleCrypto.h"
#include "text/find_bytes.h"
#include "text/shorthand.h"
#include "text/wordlist_format.h"

namespace jeerbox {

namespace {

// One replacement of the token pass, counted as work: the text is scanned
// and the result built.
void ReplaceToken(std::string* text, std::string_view token, std::string_view value) {
  std::string out = ReplaceAll(*text, token, value, kMaxTextLength);
  SpendWork(text->size() + out.size());
  *text = std::move(out);
}

// Every occurrence of the group text[open..close] replaced by `option`, in
// time linear in the text however long the group: an occurrence ends at a
// "}" and holds no other, so only a "}" that lies at least the group's
// length behind the one before it can end one, and the spans compared
// never overlap. Nothing in front of `open` holds a "{". The result is
// shorter than the text: an option is shorter than its group.
std::string ReplaceGroup(const std::string& text, size_t open, size_t close, std::string_view option) {
  const std::string_view whole = std::string_view(text).substr(open, close - open + 1);
  std::string out = text.substr(0, open);
  size_t copied = open;
  size_t previous = close;
  for (size_t end = close; end != std::string::npos; end = text.find('}', end + 1)) {
    const size_t begin = end + 1 - whole.size();
    const bool clear = end == close || previous < begin;
    previous = end;
    if (!clear || text.compare(begin, whole.size(), whole) != 0) continue;
    out.append(text, copied, begin - copied).append(option);
    copied = end + 1;
  }
  out.append(text, copied);
  return out;
}

}  // namespace

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to, size_t maxLength) {
  std::string out;
  if (from.empty()) return std::string(text.substr(0, maxLength));
  size_t start = 0;
  for (size_t hit = text.find(from); hit != std::string_view::npos; hit = text.find(from, start)) {
    out.append(text.substr(start, hit - start));
    out.append(to);
    start = hit + from.size();
    if (out.size() >= maxLength) break;
  }
  if (out.size() < maxLength) out.append(text.substr(start));
  if (out.size() > maxLength) out.resize(maxLength);
  return out;
}

// Every replacement is held to kMaxTextLength, and each scan and
// replacement is counted against the request's work.
std::string CTextUtils::ParseGameTokens(std::string text, const std::string& cityName,
                                        const std::string& playerName, const std::string& weaponName,
                                        const std::string& ratingName) {
  const ExpansionRequest request;
  SpendWork(text.size());
  if (text.find('<') == std::string::npos) return text;
  const std::string* const values[std::size(kGameTokens)] = {&cityName, &playerName, &weaponName,
                                                             &ratingName};
  for (size_t i = 0; i < std::size(kGameTokens); ++i) {
    SpendWork(text.size());
    if (text.find(kGameTokens[i]) != std::string::npos) ReplaceToken(&text, kGameTokens[i], *values[i]);
  }
  // A value inserted here is still subject to the tokens below it.
  for (const ShorthandToken& shorthand : kShorthandTokens) {
    SpendWork(text.size());
    if (text.find(shorthand.token) != std::string::npos)
      ReplaceToken(&text, shorthand.token, ShorthandText(shorthand.key));
  }
  return text;
}

std::string CTextUtils::ReadSectionFromFile(const std::string& sectionName, const std::string& fileName) {
  const std::string text = ReadWholeFile(fileName);
  return std::string(ReadSectionFromText(sectionName, text));
}

// The section starts behind the character that follows the match (the "]"
// of its head, not tested) and ends with the CR of the next CR LF "[".
std::string_view CTextUtils::ReadSectionFromText(std::string_view sectionName, std::string_view fileText) {
  const size_t match = FindBytes(fileText, sectionName);
  if (match == std::string_view::npos) return {};
  const size_t start = match + sectionName.size() + 1;
  if (start >= fileText.size()) return {};
  const std::string_view rest = fileText.substr(start);
  const size_t end = FindHeadLineEnd(rest);
  return end == std::string_view::npos ? rest : rest.substr(0, end + 1);
}

std::vector<std::string> CTextUtils::ReadSectionNamesFromFile(const std::string& fileName,
                                                              bool returnEncrypted) {
  std::vector<std::string> names;
  const std::string text = ReadWholeFile(fileName);
  ForEachCrLfPiece(text, [&](std::string_view line) {
    if (IsHeadLine(line))
      names.push_back(returnEncrypted ? std::string(HeadKey(line)) : SimpleCrypt(HeadKey(line)));
    return true;
  });
  return names;
}

// A pass scans and rebuilds the text: it is counted as twice its length.
// Passes stop at 1000, or when the request's work is spent.
std::string CTextUtils::ParseInlineTokens(std::string text) {
  const ExpansionRequest request;
  for (int passes = 0; passes < 1000 && HasWorkLeft() && text.find('{') != std::string::npos; ++passes) {
    SpendWork(2 * text.size());
    if (!ParseInlineToken(&text)) break;
  }
  return text;
}

// Choices left open for malformed groups: a "{" with no "}" behind it ends
// the passes and stays as it is; a "}" in front of the first "{" is skipped
// and the group closes at the first "}" behind the "{"; an empty "{}" is one
// empty option.
bool CTextUtils::ParseInlineToken(std::string* text) {
  const size_t open = text->find('{');
  if (open == std::string::npos) return false;
  const size_t close = text->find('}', open + 1);
  if (close == std::string::npos) return false;
  std::string_view inner = std::string_view(*text).substr(open + 1, close - open - 1);

  // The chosen option is found by counting slashes; a group of thousands
  // of options needs no list of them.
  const auto options = static_cast<int>(std::count(inner.begin(), inner.end(), '/')) + 1;
  for (int skip = RandomIndex(options); skip > 0; --skip) inner.remove_prefix(inner.find('/') + 1);
  *text = ReplaceGroup(*text, open, close, inner.substr(0, inner.find('/')));
  return true;
}

}  // namespace jeerbox
