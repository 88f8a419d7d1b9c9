// Sectioned settings files ("[Section]", "name=value" lines), read and
// written with the semantics of the classic profile functions.
#pragma once

#include <string>

namespace jeerbox {

// Copies the value of `key` in `section` of `fileName` into `buffer`, or
// `defaultValue` when the file, the section or the key is missing. Section
// and key names match without regard to case; blanks around names and
// values are dropped, and a value in matching quotes loses them. A value
// longer than size - 1 is cut to size - 1. Returns the characters copied,
// not counting the terminating NUL.
int GetPrivateProfileStringA(const std::string& section, const std::string& key,
                             const std::string& defaultValue, char* buffer, int size,
                             const std::string& fileName);

// Sets `key` in `section` to `value`, adding the section or the key when
// missing, and replaces the file as a whole. False when it can't be written.
bool WritePrivateProfileStringA(const std::string& section, const std::string& key, const std::string& value,
                                const std::string& fileName);

}  // namespace jeerbox
