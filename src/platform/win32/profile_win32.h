// The profile functions of Windows itself, for the settings file.
#pragma once

#include "platform/profile.h"

namespace jeerbox {

class Win32Profile : public IProfile {
 public:
  int GetPrivateProfileStringA(const std::string& section, const std::string& key,
                               const std::string& defaultValue, char* buffer, int size,
                               const std::string& fileName) override;
  bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                  const std::string& value, const std::string& fileName) override;
};

}  // namespace jeerbox
