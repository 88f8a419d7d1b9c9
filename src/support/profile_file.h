// The profile functions where the host has none: profile files parsed by
// hand, as Windows reads them, through the program's file system.
#pragma once

#include "platform/profile.h"

namespace jeerbox {

// Reads as Windows does, as far as a table of files read by both shows
// (tests/platform/win32/profile_win32_test.cpp): section and key names
// match without regard to case, blanks around names and values are
// dropped, a value in matching quotes loses them, and CR LF, CR and LF
// each end a line. Where it knowingly differs: a line that starts with ";"
// is a comment, not a key of that name; lines in front of the first head
// belong to no section; text behind a UTF-8 byte order mark is taken byte
// for byte, not converted to the ANSI code page; a UTF-16 file has no
// sections.
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
