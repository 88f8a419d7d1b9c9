// Random lines by key from the scrambled, numbered text files under
// System\. One generator lives for one request; it reads each file once and
// keeps each key's line list in its cache.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text/CFileCache.h"
#include "text/CGame.h"
#include "text/IItemCacheProvider.h"
#include "text/LineList.h"
#include "text/head_index.h"
#include "text/shorthand.h"
#include "text/wordlist_format.h"

namespace jeerbox {

// What a pick yields when the key's files or lines are missing.
constexpr const char* kMissingFilesText = "## System files missing - please reinstall ##";

class CTextGenerator : public IItemCacheProvider<LineList> {
 public:
  CTextGenerator();
  CTextGenerator(const CTextGenerator&) = delete;
  CTextGenerator& operator=(const CTextGenerator&) = delete;

  // Takes the named token values from the game; null leaves them empty.
  void Setup(const CGame* game);

  // A random line of the key, unscrambled, expanded and trimmed.
  std::string GetText(const std::string& key);

  // The key's data lines over all files of its family, in file order; never
  // empty: a single "" stands for "nothing found". The lines point into file
  // contents the generator owns, so they hold as long as the generator.
  LineList GetCacheItem(const std::string& requestedId) override;

  // gAppPath\System, where the numbered files lie.
  static std::string SystemDirectory();
  // gAppPath\System\<family>.<nnn>, the family being the key up to its first
  // hyphen.
  static std::string BuildTextFileName(const std::string& key, int number);

 private:
  // One numbered file as read for this generator: its bytes, whether it may
  // be used (a marked file only while marked text is allowed), and where
  // its family's keys can start.
  struct TextFile {
    bool allowed = false;
    std::string bytes;
    HeadIndex heads;
  };
  using Family = std::vector<std::unique_ptr<TextFile>>;

  void Class_Initialize();
  std::string PickText(const std::string& key);
  // The key's family: its files from number 1 up to the first missing one,
  // each read once per generator however many keys ask for it.
  const Family& FamilyOf(const std::string& key);
  // Reads the file, up to `maxBytes`; false when it doesn't exist.
  static bool ReadTextFile(const std::string& fileName, size_t maxBytes, TextFile* file);
  static bool IsFileAllowed(const TextFile& file);

  // First, so that it ends last: the lookups of this generator's picks, and
  // the work they may spend (text/shorthand.h).
  ExpansionRequest mRequest;
  std::string mPlayerName;
  std::string mCityName;
  std::string mRatingName;
  std::string mWeaponName;
  // By family name; declared before the cache: the cached lines point into
  // these files.
  std::map<std::string, Family> mFamilies;
  CFileCache<LineList> mCache;
};

// Appends the data lines of a section's raw text to `lines`: pieces split at
// CR LF that are neither blank, nor a lone CR, nor begin with ";".
void AppendDataLines(std::string_view sectionText, LineList* lines);

}  // namespace jeerbox
