// Reading sections out of text files, and the two template passes a picked
// line goes through: named tokens, then brace choices.
#pragma once

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace jeerbox {

// The named tokens a game fills in, in the order of ParseGameTokens's
// arguments: city, player, weapon, rating.
inline constexpr const char* kGameTokens[] = {"<City>", "<Player>", "<Weapon>", "<Rating>"};

class CTextUtils {
 public:
  // Named tokens ("<Insult>" and the like), in their fixed order. A token
  // present in the text is looked up once and every occurrence replaced.
  // Both passes work within the bounds of text/shorthand.h.
  static std::string ParseGameTokens(std::string text, const std::string& cityName,
                                     const std::string& playerName, const std::string& weaponName,
                                     const std::string& ratingName);

  // The raw text of the section whose scrambled key is `sectionName`, or "".
  static std::string ReadSectionFromFile(const std::string& sectionName, const std::string& fileName);
  // The same on bytes already read.
  static std::string_view ReadSectionFromText(std::string_view sectionName, std::string_view fileText);

  // One element for each "[...]" line of the file, in file order.
  static std::vector<std::string> ReadSectionNamesFromFile(const std::string& fileName, bool returnEncrypted);

  // Brace choices: up to 1000 passes, each resolving the first group.
  static std::string ParseInlineTokens(std::string text);

 private:
  // Resolves the first group. False when the text holds no well-formed group
  // to resolve, in which case nothing was drawn and the text is unchanged.
  static bool ParseInlineToken(std::string* text);
};

// Every occurrence of `from` replaced by `to`, left to right, without
// rescanning what was inserted; the result is cut at `maxLength`.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to,
                       size_t maxLength = std::string::npos);

}  // namespace jeerbox
