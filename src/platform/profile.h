// Sectioned settings files ("[Section]", "name=value" lines) through the
// classic profile functions. Windows has them; elsewhere a portable reader
// (support/profile_file.h) stands in.
#pragma once

#include <string>

namespace jeerbox {

class IProfile {
 public:
  virtual ~IProfile() = default;
  // Copies the value of `key` in `section` of `fileName` into `buffer` of
  // `size` characters, the terminating NUL included, or `defaultValue` when
  // the file, the section or the key is missing. Returns the characters
  // copied, not counting the NUL: a longer value arrives cut to size - 1.
  virtual int GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                       const std::string& defaultValue, char* buffer, int size,
                                       const std::string& fileName) = 0;
  // Sets `key` in `section` to `value`, adding the section or the key when
  // missing. False when the file can't be written.
  virtual bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                          const std::string& value, const std::string& fileName) = 0;
};

}  // namespace jeerbox
