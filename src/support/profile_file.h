// The profile functions where the host has none: profile files parsed by
// hand, as Windows reads them, through the program's file system.
#pragma once

#include "platform/profile.h"

namespace jeerbox {

// Section and key names match without regard to case; blanks around names
// and values are dropped, and a value in matching quotes loses them.
class PortableProfile : public IProfile {
 public:
  int GetPrivateProfileStringA(const std::string& section, const std::string& key,
                               const std::string& defaultValue, char* buffer, int size,
                               const std::string& fileName) override;
  // Replaces the file as a whole.
  bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                  const std::string& value, const std::string& fileName) override;
};

}  // namespace jeerbox
