// One table of settings files for both profile readers: what Windows'
// GetPrivateProfileStringA gives, and the portable reader's answer where it
// differs on purpose (see support/profile_file.h).
#pragma once

#include <string>
#include <vector>

#include "platform/profile.h"

namespace jeerbox::testing {

struct ProfileRow {
  std::string file;  // "" for no file at all
  std::string section, key;
  std::string windows;             // with the default "d  "
  const char* portable = nullptr;  // where it differs on purpose
};

// What `profile` reads for `row` from `path`, or "(bad length)" when the
// length it returns doesn't end at the terminating NUL.
inline std::string ReadProfileRow(IProfile& profile, const std::string& path, const ProfileRow& row) {
  std::string buffer(2048, '#');
  const int n = profile.GetPrivateProfileStringA(row.section, row.key, "d  ", buffer.data(), 2048, path);
  return n >= 0 && n < 2048 && buffer[static_cast<size_t>(n)] == '\0'
             ? buffer.substr(0, static_cast<size_t>(n))
             : "(bad length)";
}

inline std::vector<ProfileRow> ProfileRows() {
  using namespace std::string_literals;
  const std::string utf16 = "\xff\xfe[\0T\0W\0]\0\r\0\n\0E\0n\0a\0b\0l\0e\0F\0X\0=\0x\0\r\0\n\0"s;
  return {
      {"[TW]\r\nEnableFX=False\r\n", "TW", "EnableFX", "False"},
      {"[tw]\r\nenablefx=False\r\n", "TW", "EnableFX", "False"},
      {"  [ TW ]  \r\n \t EnableFX \t = \t False \t \r\n", "TW", "EnableFX", "False"},
      {"[TW]\r\nEnableFX=False\r\n", " TW ", " EnableFX ", "False"},
      {"[TW]\r\nEnable FX=1\r\n", "TW", "Enable FX", "1"},
      {"[TW]\r\nEnableFX=\"False\"\r\n", "TW", "EnableFX", "False"},
      {"[TW]\r\nEnableFX='False'\r\n", "TW", "EnableFX", "False"},
      {"[TW]\r\nEnableFX=\"False'\r\n", "TW", "EnableFX", "\"False'"},
      {"[TW]\r\nEnableFX=\"\r\n", "TW", "EnableFX", "\""},
      {"[TW]\r\nEnableFX= \" x \" \r\n", "TW", "EnableFX", " x "},
      {"[TW]\r\nEnableFX=\"\"\r\n", "TW", "EnableFX", ""},
      {"[TW]\r\nEnableFX=\r\n", "TW", "EnableFX", ""},
      {"[TW]\r\nEnableFX\r\n", "TW", "EnableFX", "d"},
      {"", "TW", "EnableFX", "d"},
      {"[Other]\r\nEnableFX=1\r\n", "TW", "EnableFX", "d"},
      {"[Other]\r\nEnableFX=1\r\n", "Other", "Missing", "d"},
      {" junk\r\n[TW]\r\n=x\r\nno equals\r\n]odd[\r\nEnableFX=True\r\n", "TW", "EnableFX", "True"},
      {"[TW]\r\nEnableFX=a=b ; not a comment\r\n", "TW", "EnableFX", "a=b ; not a comment"},
      {"[TW]\r\nEnableFX=1\r\nEnableFX=2\r\n", "TW", "EnableFX", "1"},
      {"[TW]\r\nA=1\r\n[TW]\r\nEnableFX=2\r\n", "TW", "EnableFX", "d"},
      {"[TW]\r\n[Next]\r\nEnableFX=1\r\n", "TW", "EnableFX", "d"},
      {"[TW] ; the switches\r\nEnableFX=1\r\n", "TW", "EnableFX", "1"},
      {"[TW\r\nEnableFX=1\r\n", "TW", "EnableFX", "d"},
      {"[TW]]\r\nEnableFX=1\r\n", "TW]", "EnableFX", "1"},
      {"[TW]\r\n;EnableFX=False\r\n", "TW", "EnableFX", "d"},
      {"[TW]\r\n;EnableFX=False\r\n", "TW", ";EnableFX", "False", "d"},
      {"EnableFX=1\r\n[TW]\r\n", "TW", "EnableFX", "d"},
      {"EnableFX=1\r\n[TW]\r\n", "", "EnableFX", "1", "d"},
      {"[TW]\rEnableFX=False\r", "TW", "EnableFX", "False"},
      {"[TW]\nEnableFX=False", "TW", "EnableFX", "False"},
      {"[TW]\n\rEnableFX=False\n\r", "TW", "EnableFX", "False"},
      {"[TW]\r\nEnableFX=False\v\f\x1a", "TW", "EnableFX", "False"},
      {"[TW]\r\nEnableFX=False\xa0\r\n", "TW", "EnableFX", "False\xa0"},
      {"[TW]\r\nEnableFX=caf\xe9 \x93q\x94\r\n", "TW", "EnableFX", "caf\xe9 \x93q\x94"},
      {"[TW]\r\n\xc9=1\r\n", "TW", "\xe9", "d"},
      {"[TW]\r\nEnableFX=Tr\0ue\r\n"s, "TW", "EnableFX", "Tr"},
      {"[TW]\r\nEnableFX=" + std::string(3000, 'v') + "\r\n", "TW", "EnableFX", std::string(2047, 'v')},
      {"\xef\xbb\xbf[TW]\r\nEnableFX=False\r\n", "TW", "EnableFX", "False"},
      {"\xef\xbb\xbf[TW]\r\nEnableFX=caf\xc3\xa9\r\n", "TW", "EnableFX", "caf\xe9", "caf\xc3\xa9"},
      {utf16, "TW", "EnableFX", "x", "d"},
  };
}

}  // namespace jeerbox::testing
