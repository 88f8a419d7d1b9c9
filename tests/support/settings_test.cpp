#include "support/CSettings.h"

#include <gtest/gtest.h>

#include "helpers/fake_file_system.h"
#include "support/globals.h"

namespace jeerbox {
namespace {

const char* const kConfig = "C:\\app\\UserInfo\\Tallowick.cfg";

class SettingsTest : public ::testing::Test {
 protected:
  void SetUp() override { gAppPath = "C:\\app"; }
  testing::FakeFileSystem mFiles;
};

TEST_F(SettingsTest, FileLiesUnderUserInfo) { EXPECT_EQ(CSettings().ConfigFile(), kConfig); }

TEST_F(SettingsTest, MissingFileReadsBothSwitchesAsTrue) {
  const CSettings settings;
  EXPECT_EQ(settings.ReadSetting("EnableFX", true), "True");
  EXPECT_EQ(settings.ReadSetting("EnableMusic", true), "True");
  EXPECT_TRUE(SettingToBoolean(settings.ReadSetting("EnableFX", true), false));
  EXPECT_EQ(settings.ReadSetting("Other", false), "False");
  EXPECT_EQ(settings.ReadSetting("Other", "x"), "x");
}

TEST_F(SettingsTest, ReadsSectionTWWithoutRegardToCase) {
  mFiles.Write(kConfig, "[Other]\r\nEnableFX=one\r\n[tw]\r\nenablefx = False \r\nEnableMusic=\r\n");
  const CSettings settings;
  EXPECT_EQ(settings.ReadSetting("EnableFX", true), "False");
  // Present but empty reads as absent.
  EXPECT_EQ(settings.ReadSetting("EnableMusic", true), "True");
}

TEST_F(SettingsTest, LongValueIsCutTo2047Characters) {
  const std::string value(5000, 'v');
  mFiles.Write(kConfig, "[TW]\nLong=" + value + "\n");
  EXPECT_EQ(CSettings().ReadSetting("Long", ""), value.substr(0, 2047));
}

TEST_F(SettingsTest, WriteSettingGoesToSectionTWAndReadsBack) {
  const CSettings settings;
  settings.WriteSetting("EnableFX", "False");
  EXPECT_EQ(settings.ReadSetting("EnableFX", true), "False");
  EXPECT_EQ(CSettings::ReadGeneralSetting(kConfig, "TW", "EnableFX", "x"), "False");
  EXPECT_EQ(CSettings::ReadGeneralSetting(kConfig, "Other", "EnableFX", "x"), "x");
}

TEST_F(SettingsTest, ReadGeneralSettingTakesFileAndSectionFromTheCaller) {
  mFiles.Write("C:\\else.ini", "[Audio]\r\nVolume=\"7\"\r\n");
  EXPECT_EQ(CSettings::ReadGeneralSetting("C:\\else.ini", "AUDIO", "volume", "0"), "7");
  EXPECT_EQ(CSettings::ReadGeneralSetting("C:\\else.ini", "TW", "Volume", "0"), "0");
}

TEST(SettingToBoolean, TakesWordsInAnyCaseAndNumbers) {
  for (const char* text :
       {"True", "TRUE", "true", "tRuE", " true ", "1", "-1", "+2", "0.5", ".5", "1e3", "10", "-0.01"})
    EXPECT_TRUE(SettingToBoolean(text, false)) << text;
  for (const char* text : {"False", "FALSE", "false", "0", "-0", "0.000", "0e5", " 0 ", "00"})
    EXPECT_FALSE(SettingToBoolean(text, true)) << text;
}

TEST(SettingToBoolean, OtherTextGivesTheFallback) {
  for (const char* text :
       {"", "yes", "no", "on", "1abc", "nan", "inf", "0x10", ".", "-", "1e", "1.2.3", "tru", "true1"}) {
    EXPECT_TRUE(SettingToBoolean(text, true)) << text;
    EXPECT_FALSE(SettingToBoolean(text, false)) << text;
  }
}

}  // namespace
}  // namespace jeerbox
