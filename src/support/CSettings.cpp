#include "support/CSettings.h"

#include <cctype>
#include <cstdlib>

#include "platform/profile.h"
#include "support/globals.h"

namespace jeerbox {
namespace {

constexpr const char* kSection = "TW";
constexpr int kBufferSize = 2048;

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

}  // namespace

CSettings::CSettings() { Class_Initialize(); }

void CSettings::Class_Initialize() { mConfigFile = gAppPath + "\\UserInfo\\Tallowick.cfg"; }

std::string CSettings::ReadSetting(const std::string& settingName, const std::string& defaultValue) const {
  return ReadGeneralSetting(mConfigFile, kSection, settingName, defaultValue);
}

std::string CSettings::ReadSetting(const std::string& settingName, bool defaultValue) const {
  return ReadSetting(settingName, BooleanText(defaultValue));
}

void CSettings::WriteSetting(const std::string& settingName, const std::string& settingValue) const {
  WritePrivateProfileStringA(kSection, settingName, settingValue, mConfigFile);
}

// An empty default makes "present but empty" read the same as "absent".
std::string CSettings::ReadGeneralSetting(const std::string& configFileName, const std::string& section,
                                          const std::string& settingName, const std::string& defaultValue) {
  char buffer[kBufferSize];
  const int length = GetPrivateProfileStringA(section, settingName, "", buffer, kBufferSize, configFileName);
  return length > 0 ? std::string(buffer, static_cast<size_t>(length)) : defaultValue;
}

std::string BooleanText(bool value) { return value ? "True" : "False"; }

bool SettingToBoolean(const std::string& text, bool fallback) {
  const std::string word = Lower(text);
  if (word == "true") return true;
  if (word == "false") return false;
  const char* begin = text.c_str();
  char* end = nullptr;
  const double number = std::strtod(begin, &end);
  if (end == begin) return fallback;
  while (*end == ' ') ++end;
  if (*end != '\0') return fallback;
  return number != 0.0;
}

}  // namespace jeerbox
