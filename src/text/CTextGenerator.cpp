// The text store: numbered files, scrambled sections, random picks.
#include "text/CTextGenerator.h"

#include "platform/file_system.h"
#include "platform/random.h"
#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "text/CTextUtils.h"
#include "text/MSimpleCrypto.h"

namespace jeerbox {
namespace {

bool IsBlank(std::string_view piece) { return piece.find_first_not_of(' ') == std::string_view::npos; }

const std::string& ScrambledMarker() {
  static const std::string marker = SimpleCrypt("<XT>");
  return marker;
}

}  // namespace

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
  std::string text = SimpleCrypt(line);
  text = CTextUtils::ParseGameTokens(std::move(text), mCityName, mPlayerName, mWeaponName,
                                     mRatingName);
  text = CTextUtils::ParseInlineTokens(std::move(text));
  return Trim(text);
}

// Lines are appended as stored: neither trimmed nor cut. A key found in no
// file, even with all 999 present, gives the one-element "nothing" list, and
// a key may collect any number of lines: the counts aren't limited to 16 bits.
LineList CTextGenerator::GetCacheItem(const std::string& requestedId) {
  const std::string section = SimpleCrypt(requestedId);
  LineList lines;
  for (int n = 1; n <= kMaxFileNumber; ++n) {
    const std::string fileName = BuildTextFileName(requestedId, n);
    if (!File(fileName).exists) break;
    if (IsFileAllowed(fileName)) AppendDataLines(ReadSection(section, fileName), &lines);
  }
  if (lines.empty()) lines.emplace_back();
  return lines;
}

void AppendDataLines(std::string_view sectionText, LineList* lines) {
  if (sectionText.empty()) return;
  size_t start = 0;
  for (;;) {
    const size_t end = sectionText.find("\r\n", start);
    const std::string_view piece =
        sectionText.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start);
    if (!IsBlank(piece) && piece != "\r" && piece.front() != ';') lines->push_back(piece);
    if (end == std::string_view::npos) break;
    start = end + 2;
  }
}

std::string CTextGenerator::BuildTextFileName(const std::string& key, int number) {
  const size_t hyphen = key.find('-');
  const std::string prefix = hyphen == std::string::npos ? key : key.substr(0, hyphen);
  std::string digits = "000" + std::to_string(number);
  digits.erase(0, digits.size() - 3);
  return gAppPath + "\\System\\" + prefix + "." + digits;
}

// Each file is read once per generator, however many keys ask for it: the
// marker test and the section reads share the one copy. A file that exists
// but can't be read counts as empty.
const CTextGenerator::TextFile& CTextGenerator::File(const std::string& fileName) {
  std::unique_ptr<TextFile>& slot = mFiles[fileName];
  if (slot) return *slot;
  slot = std::make_unique<TextFile>();
  IFileSystem& fs = CurrentFileSystem();
  const FileStatus status = fs.ReadFile(fileName, &slot->bytes);
  slot->exists = status == FileStatus::kOk || (status == FileStatus::kError && fs.FileExists(fileName));
  if (status != FileStatus::kOk) slot->bytes.clear();
  slot->allowed = slot->bytes.find(ScrambledMarker()) == std::string::npos || gAllowMarkedText;
  return *slot;
}

bool CTextGenerator::IsFileAllowed(const std::string& fileName) { return File(fileName).allowed; }

std::string_view CTextGenerator::ReadSection(std::string_view section, const std::string& fileName) {
  return CTextUtils::ReadSectionFromText(section, File(fileName).bytes);
}

}  // namespace jeerbox
