// Named string settings in the settings file UserInfo\Tallowick.cfg,
// section "TW". Every reading problem ends in the caller's default.
#pragma once

#include <string>

#include "platform/profile.h"

namespace jeerbox {

// The profile functions settings are read with: the portable reader unless
// the host's own were put in place (SetProfile returns the previous ones;
// nullptr restores the portable reader). The caller keeps ownership.
IProfile& CurrentProfile();
IProfile* SetProfile(IProfile* profile);

class CSettings {
 public:
  CSettings();

  // The setting's text, or `defaultValue` when it is missing or empty.
  std::string ReadSetting(const std::string& settingName, const std::string& defaultValue) const;
  // Without it a string literal default would take the bool overload.
  std::string ReadSetting(const std::string& settingName, const char* defaultValue) const;
  std::string ReadSetting(const std::string& settingName, bool defaultValue) const;
  void WriteSetting(const std::string& settingName, const std::string& settingValue) const;
  static std::string ReadGeneralSetting(const std::string& configFileName, const std::string& section,
                                        const std::string& settingName, const std::string& defaultValue);

  const std::string& ConfigFile() const { return mConfigFile; }

 private:
  void Class_Initialize();

  std::string mConfigFile;
};

// The text of a Boolean as a setting holds it: "True" or "False".
std::string BooleanText(bool value);

// "true"/"false" in any case, or a decimal number (0 is false, any other
// true), blanks around it allowed.
// Any other text gives `fallback`, so a garbled file never stops the program.
bool SettingToBoolean(const std::string& text, bool fallback);

}  // namespace jeerbox
