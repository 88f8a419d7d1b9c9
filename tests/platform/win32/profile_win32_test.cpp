// The settings file read by Windows' own profile functions and by the
// portable reader that stands in for them elsewhere: one table of files,
// both readers, the same answer, but for the differences the portable
// reader keeps on purpose (see support/profile_file.h).
#include "platform/win32/profile_win32.h"

#include <gtest/gtest.h>

#include "helpers/temp_dir.h"
#include "support/profile_file.h"

namespace jeerbox {
namespace {

struct Row {
  std::string file;  // "" for no file at all
  std::string section, key;
  std::string windows;             // what GetPrivateProfileStringA gives, default "d"
  const char* portable = nullptr;  // the portable reader's answer where it differs on purpose
};

// A file's bytes, NULs and all.
template <size_t N>
std::string Bytes(const char (&text)[N]) {
  return std::string(text, N - 1);
}

std::string Read(IProfile& profile, const std::string& path, const Row& row) {
  char buffer[2048];
  const int n = profile.GetPrivateProfileStringA(row.section, row.key, "d  ", buffer, sizeof buffer, path);
  return n >= 0 && n < 2048 && buffer[n] == '\0' ? std::string(buffer, static_cast<size_t>(n))
                                                 : "(bad length)";
}

TEST(Profile, WindowsAndThePortableReaderAgree) {
  const std::string nul = Bytes("[TW]\r\nEnableFX=Tr\0ue\r\n");
  const std::string utf16 = Bytes("\xff\xfe[\0T\0W\0]\0\r\0\n\0E\0n\0a\0b\0l\0e\0F\0X\0=\0x\0\r\0\n\0");
  const Row rows[] = {
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
      {nul, "TW", "EnableFX", "Tr"},
      {"[TW]\r\nEnableFX=" + std::string(3000, 'v') + "\r\n", "TW", "EnableFX", std::string(2047, 'v')},
      {"\xef\xbb\xbf[TW]\r\nEnableFX=False\r\n", "TW", "EnableFX", "False"},
      {"\xef\xbb\xbf[TW]\r\nEnableFX=caf\xc3\xa9\r\n", "TW", "EnableFX", "caf\xe9", "caf\xc3\xa9"},
      {utf16, "TW", "EnableFX", "x", "d"},
  };
  testing::TempDir dir;
  Win32Profile windows;
  PortableProfile portable;
  for (size_t i = 0; i < std::size(rows); ++i) {
    const Row& row = rows[i];
    // A file of its own per row: Windows may keep the last file it read.
    const std::string name = "row" + std::to_string(i) + ".cfg";
    if (!row.file.empty()) dir.Write(name, row.file);
    const std::string path = dir.Path() + "\\" + name;
    EXPECT_EQ(Read(windows, path, row), row.windows) << "row " << i << " (Windows)";
    EXPECT_EQ(Read(portable, path, row), row.portable ? row.portable : row.windows)
        << "row " << i << " (portable)";
  }
}

}  // namespace
}  // namespace jeerbox
