// Settings as the program reads them, through the portable profile reader
// and writer, which read profile files as Windows does.
#include <gtest/gtest.h>

#include <filesystem>

#include "helpers/fake_file_system.h"
#include "helpers/profile_rows.h"
#include "helpers/temp_dir.h"
#include "support/CSettings.h"
#include "support/globals.h"
#include "support/profile_file.h"

namespace jeerbox {
namespace {

TEST(CSettings, ReadsSectionTWAndGivesTheDefaultForMissingOrEmpty) {
  testing::FakeFileSystem files;
  gAppPath = "C:\\app";
  const CSettings settings;
  // Rows: file ("" for none), EnableFX read.
  const std::pair<const char*, const char*> rows[] = {
      {"", "True"},
      {"[TW]\r\nEnableFX=\r\n", "True"},
      {"[Other]\r\nEnableFX=one\r\n[TW]\r\nEnableFX=False\r\n", "False"}};
  for (const auto& [file, read] : rows) {
    files.Remove(settings.ConfigFile());
    if (*file != '\0') files.Write(settings.ConfigFile(), file);
    EXPECT_EQ(settings.ReadSetting("EnableFX", true), read) << file;
  }
  files.Write(settings.ConfigFile(), "[TW]\nLong=" + std::string(5000, 'v') + "\n");
  EXPECT_EQ(settings.ReadSetting("Long", ""), std::string(2047, 'v'));  // as the 2048 buffer holds it
  settings.WriteSetting("EnableFX", "False");
  EXPECT_EQ(CSettings::ReadGeneralSetting(settings.ConfigFile(), "TW", "EnableFX", "x"), "False");
  EXPECT_EQ(CSettings::ReadGeneralSetting(settings.ConfigFile(), "Other", "EnableFX", "x"), "x");
}

TEST(SettingToBoolean, TakesWordsInAnyCaseAndNumbersElseTheFallback) {
  for (const char* text : {"True", "tRuE", " true ", "1", "-1", "+2", "0.5", ".5", "1e3", "10", "-0.01"})
    EXPECT_TRUE(SettingToBoolean(text, false)) << text;
  for (const char* text : {"False", "FALSE", "0", "-0", "0.000", "0e5", " 0 ", "00"})
    EXPECT_FALSE(SettingToBoolean(text, true)) << text;
  for (const char* text : {"", "yes", "1abc", "nan", "inf", "0x10", ".", "-", "1e", "1.2.3", "tru", "true1"})
    EXPECT_TRUE(SettingToBoolean(text, true) && !SettingToBoolean(text, false)) << text;
}

const char* const kFile = "C:\\app\\UserInfo\\Tallowick.cfg";

// The table Windows' own reader is held to as well (under Wine).
TEST(PortableProfile, ReadsAsWindowsDoes) {
  testing::FakeFileSystem files;
  PortableProfile portable;
  for (const testing::ProfileRow& row : testing::ProfileRows()) {
    files.Remove(kFile);
    if (!row.file.empty()) files.Write(kFile, row.file);
    EXPECT_EQ(ReadProfileRow(portable, kFile, row), row.portable ? row.portable : row.windows)
        << row.file << " " << row.key;
  }
}

TEST(PortableProfile, WriteChangesOneLineAndKeepsTheRest) {
  testing::FakeFileSystem files;
  // Rows: before ("" for no file), after.
  const std::pair<const char*, const char*> rows[] = {
      {"", "[TW]\r\nEnableFX=False\r\nNew=v\r\n\r\n[Third]\r\nK=w\r\n"},
      {"; by hand\r\n[Other]\r\nEnableFX=7\r\n\r\n[tw]\r\n  enablefx = True \r\nX=1\r\n\r\n",
       "; by hand\r\n[Other]\r\nEnableFX=7\r\n\r\n[tw]\r\nEnableFX=False\r\nX=1\r\n"
       "New=v\r\n\r\n[Third]\r\nK=w\r\n"}};
  for (const auto& [before, after] : rows) {
    files.Remove(kFile);
    if (*before != '\0') files.Write(kFile, before);
    for (const auto& [section, key, value] :
         {std::tuple("TW", "EnableFX", "False"), {"TW", "New", "v"}, {"Third", "K", "w"}})
      EXPECT_TRUE(PortableProfile().WritePrivateProfileStringA(section, key, value, kFile));
    EXPECT_EQ(files.Contents(kFile), after);
  }
  files.AddUnreadable(kFile);  // a file it can't read, it doesn't replace
  EXPECT_FALSE(PortableProfile().WritePrivateProfileStringA("TW", "A", "1", kFile));
}

// A new file takes the old one's place: a second name of the old file keeps
// the old contents, and no temporary file stays.
TEST(PortableProfile, WriteReplacesTheFileOnDiskWhole) {
  testing::TempDir dir;
  dir.Write("UserInfo/Tallowick.cfg", "[TW]\nEnableFX=True\n");
  std::filesystem::create_hard_link(dir.Path() + "/UserInfo/Tallowick.cfg", dir.Path() + "/old.cfg");
  ASSERT_TRUE(PortableProfile().WritePrivateProfileStringA("TW", "EnableFX", "False",
                                                           dir.Path() + "\\UserInfo\\Tallowick.cfg"));
  EXPECT_EQ(dir.Read("UserInfo/Tallowick.cfg"), "[TW]\r\nEnableFX=False\r\n");
  EXPECT_EQ(dir.Read("old.cfg"), "[TW]\nEnableFX=True\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Path() + "/UserInfo"), {}), 1);
}

}  // namespace
}  // namespace jeerbox
