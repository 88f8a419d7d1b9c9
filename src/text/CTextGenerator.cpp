// The text store: numbered files, scrambled sections, random picks.
#include "text/CTextGenerator.h"

#include <algorithm>

#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextUtils.h"
#include "text/MSimpleCrypto.h"
#include "text/wordlist_format.h"

namespace jeerbox {

CTextGenerator::CTextGenerator() { Class_Initialize(); }

void CTextGenerator::Class_Initialize() { mCache.Setup(20); }

void CTextGenerator::Setup(const CGame* game) {
  if (game == nullptr) return;
  const CGame* player = game->Player();
  const CGame* city = game->City();
  mPlayerName = player ? player->Name() : std::string();
  mCityName = city ? city->Name() : std::string();
  mRatingName = player ? player->Rating() : std::string();
  mWeaponName = player ? player->WeaponName() : std::string();
}

std::string CTextGenerator::GetText(const std::string& key) { return PickText(key); }

std::string CTextGenerator::PickText(const std::string& key) {
  const LineList& lines = mCache.GetItem(key, *this);
  Reseed();
  const std::string_view line = lines[static_cast<size_t>(RandomIndex(static_cast<int>(lines.size())))];
  if (line.empty()) return kMissingFilesText;
  // The passes never keep more than this of a line: unscrambling more of a
  // long one would only cost.
  std::string text = SimpleCrypt(line.substr(0, kMaxTextLength));
  text = CTextUtils::ParseGameTokens(std::move(text), mCityName, mPlayerName, mWeaponName, mRatingName);
  text = CTextUtils::ParseInlineTokens(std::move(text));
  return Trim(std::move(text));
}

// Lines are appended as stored: neither trimmed nor cut. A key found in no
// file, even with all 999 present, gives the one-element "nothing" list, and
// a key may collect any number of lines: the counts aren't limited to 16 bits.
LineList CTextGenerator::GetCacheItem(const std::string& requestedId) {
  const std::string section = SimpleCrypt(requestedId);
  LineList lines;
  for (const auto& file : FamilyOf(requestedId)) {
    if (!IsFileAllowed(*file)) continue;
    // The section begins behind the character that follows the key (the
    // "]" of its head, not tested).
    const size_t match = file->heads.Find(section);
    if (match != std::string::npos && match + section.size() + 1 < file->bytes.size())
      lines.AppendSectionOf(std::string_view(file->bytes).substr(match + section.size() + 1));
  }
  lines.MarkNothingIfEmpty();
  return lines;
}

void AppendDataLines(std::string_view sectionText, LineList* lines) { lines->AppendSection(sectionText); }

std::string CTextGenerator::SystemDirectory() { return gAppPath + "\\System"; }

std::string CTextGenerator::BuildTextFileName(const std::string& key, int number) {
  return SystemDirectory() + "\\" + NumberedFileName(KeyFamily(key), number);
}

namespace {

// The files of a family differ only in the last three digits of the name.
void SetFileNumber(std::string* fileName, int number) {
  for (size_t i = 1; i <= 3; ++i, number /= 10)
    (*fileName)[fileName->size() - i] = static_cast<char>('0' + number % 10);
}

}  // namespace

const CTextGenerator::Family& CTextGenerator::FamilyOf(const std::string& key) {
  const std::string name = KeyFamily(key);
  auto found = mFamilies.find(name);
  if (found != mFamilies.end()) return found->second;
  Family& family = mFamilies[name];
  const std::string storedName = SimpleCrypt(name);
  size_t familyBytes = 0;
  std::string fileName = BuildTextFileName(key, 1);
  for (int n = 1; n <= kMaxFileNumber; ++n) {
    auto file = std::make_unique<TextFile>();
    const size_t limit = std::min(kMaxWordListBytes, kMaxFamilyBytes - familyBytes);
    SetFileNumber(&fileName, n);
    if (!ReadTextFile(fileName, limit, file.get())) break;
    familyBytes += file->bytes.size();
    file->heads = HeadIndex(file->bytes, storedName);
    family.push_back(std::move(file));
  }
  return family;
}

// A file that exists but can't be read counts as empty: no marker, no
// sections, and the scan goes on behind it. So does a file beyond the
// limit, which keeps what one family may hold in memory bounded.
bool CTextGenerator::ReadTextFile(const std::string& fileName, size_t maxBytes, TextFile* file) {
  IFileSystem& fs = CurrentFileSystem();
  const FileStatus status = fs.ReadFile(fileName, &file->bytes, maxBytes);
  if (status == FileStatus::kNotFound || (status == FileStatus::kError && !fs.FileExists(fileName)))
    return false;
  if (status != FileStatus::kOk) file->bytes.clear();
  // While marked text is allowed, as it always is in the program, whether
  // the file is marked changes nothing, and the sweep for the marker is
  // spared.
  file->allowed = gAllowMarkedText || !HoldsMarker(file->bytes);
  return true;
}

bool CTextGenerator::IsFileAllowed(const TextFile& file) { return file.allowed; }

}  // namespace jeerbox
