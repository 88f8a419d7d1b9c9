// Section reading and the template passes.
#include "text/CTextUtils.h"

#include "support/MSimpleIO.h"
#include "support/random.h"
#include "text/MSimpleCrypto.h"
#include "text/find_bytes.h"
#include "text/shorthand.h"
#include "text/wordlist_format.h"

namespace jeerbox {

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  if (from.empty()) return std::string(text);
  size_t start = 0;
  for (size_t hit = text.find(from); hit != std::string_view::npos; hit = text.find(from, start)) {
    out.append(text.substr(start, hit - start));
    out.append(to);
    start = hit + from.size();
  }
  out.append(text.substr(start));
  return out;
}

std::string CTextUtils::ParseGameTokens(std::string text, const std::string& cityName,
                                        const std::string& playerName, const std::string& weaponName,
                                        const std::string& ratingName) {
  if (text.find('<') == std::string::npos) return text;
  const std::string* const values[std::size(kGameTokens)] = {&cityName, &playerName, &weaponName,
                                                             &ratingName};
  for (size_t i = 0; i < std::size(kGameTokens); ++i)
    if (text.find(kGameTokens[i]) != std::string::npos) text = ReplaceAll(text, kGameTokens[i], *values[i]);
  // A value inserted here is still subject to the tokens below it.
  for (const ShorthandToken& shorthand : kShorthandTokens)
    if (text.find(shorthand.token) != std::string::npos)
      text = ReplaceAll(text, shorthand.token, ShorthandText(shorthand.key));
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

std::string CTextUtils::ParseInlineTokens(std::string text) {
  for (int passes = 0; passes < 1000 && text.find('{') != std::string::npos; ++passes)
    if (!ParseInlineToken(&text)) break;
  return text;
}

// Choices left open for malformed groups: a "{" with no "}" behind it ends
// the passes and stays as it is; a "}" in front of the first "{" is skipped
// and the group closes at the first "}" behind the "{"; an empty "{}" is one
// empty option. Positions aren't limited to 16 bits.
bool CTextUtils::ParseInlineToken(std::string* text) {
  const size_t open = text->find('{');
  if (open == std::string::npos) return false;
  const size_t close = text->find('}', open + 1);
  if (close == std::string::npos) return false;
  const std::string whole = text->substr(open, close - open + 1);
  const std::string_view inner = std::string_view(whole).substr(1, whole.size() - 2);

  std::vector<std::string_view> options;
  size_t start = 0;
  for (size_t slash = inner.find('/'); slash != std::string_view::npos; slash = inner.find('/', start)) {
    options.push_back(inner.substr(start, slash - start));
    start = slash + 1;
  }
  options.push_back(inner.substr(start));

  const int index = RandomIndex(static_cast<int>(options.size()));
  *text = ReplaceAll(*text, whole, options[static_cast<size_t>(index)]);
  return true;
}

}  // namespace jeerbox
