#include "support/CSettings.h"

#include <cctype>

#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "support/profile_file.h"

namespace jeerbox {
namespace {

constexpr const char* kSection = "TW";
constexpr int kBufferSize = 2048;

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

IProfile* gProfile = nullptr;

}  // namespace

IProfile& CurrentProfile() {
  static PortableProfile portable;
  return gProfile ? *gProfile : portable;
}

IProfile* SetProfile(IProfile* profile) {
  IProfile* previous = gProfile;
  gProfile = profile;
  return previous;
}

CSettings::CSettings() { Class_Initialize(); }

void CSettings::Class_Initialize() { mConfigFile = gAppPath + "\\UserInfo\\Tallowick.cfg"; }

std::string CSettings::ReadSetting(const std::string& settingName, const std::string& defaultValue) const {
  return ReadGeneralSetting(mConfigFile, kSection, settingName, defaultValue);
}

std::string CSettings::ReadSetting(const std::string& settingName, const char* defaultValue) const {
  return ReadSetting(settingName, std::string(defaultValue));
}

std::string CSettings::ReadSetting(const std::string& settingName, bool defaultValue) const {
  return ReadSetting(settingName, BooleanText(defaultValue));
}

void CSettings::WriteSetting(const std::string& settingName, const std::string& settingValue) const {
  CurrentProfile().WritePrivateProfileStringA(kSection, settingName, settingValue, mConfigFile);
}

// An empty default makes "present but empty" read the same as "absent".
std::string CSettings::ReadGeneralSetting(const std::string& configFileName, const std::string& section,
                                          const std::string& settingName, const std::string& defaultValue) {
  char buffer[kBufferSize];
  int length = 0;
  try {
    length = CurrentProfile().GetPrivateProfileStringA(section, settingName, "", buffer, kBufferSize,
                                                       configFileName);
  } catch (...) {  // every reading problem ends in the default
  }
  return length > 0 ? std::string(buffer, static_cast<size_t>(length)) : defaultValue;
}

std::string BooleanText(bool value) { return value ? "True" : "False"; }

// A decimal number ("-1", "0.0", "2e3") is true unless every digit of its
// mantissa is 0. Checked by hand: strtod would also take "nan", "inf" and
// hex, and follows the locale's decimal point.
bool SettingToBoolean(const std::string& text, bool fallback) {
  const std::string word = Lower(Trim(text));
  if (word == "true") return true;
  if (word == "false") return false;
  size_t at = (!word.empty() && (word[0] == '-' || word[0] == '+')) ? 1 : 0;
  bool digits = false, nonZero = false, point = false;
  for (; at < word.size(); ++at) {
    const char c = word[at];
    if (c >= '0' && c <= '9') {
      digits = true;
      nonZero = nonZero || c != '0';
    } else if (c == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (!digits) return fallback;
  if (at < word.size() && word[at] == 'e') {
    ++at;
    if (at < word.size() && (word[at] == '-' || word[at] == '+')) ++at;
    const size_t exponent = at;
    while (at < word.size() && word[at] >= '0' && word[at] <= '9') ++at;
    if (at == exponent) return fallback;
  }
  return at == word.size() ? nonZero : fallback;
}

}  // namespace jeerbox
