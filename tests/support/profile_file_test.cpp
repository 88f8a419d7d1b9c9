#include "support/profile_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "helpers/fake_file_system.h"
#include "helpers/temp_dir.h"

namespace jeerbox {
namespace {

const char* const kFile = "C:\\app\\UserInfo\\Tallowick.cfg";

// The value as the profile function leaves it in a buffer of `size`.
std::string Get(const std::string& section, const std::string& key, const std::string& fallback = "",
                int size = 2048) {
  std::string buffer(static_cast<size_t>(size), '#');
  const int length =
      PortableProfile().GetPrivateProfileStringA(section, key, fallback, buffer.data(), size, kFile);
  EXPECT_EQ(buffer[static_cast<size_t>(length)], '\0');
  return buffer.substr(0, static_cast<size_t>(length));
}

class ProfileTest : public ::testing::Test {
 protected:
  testing::FakeFileSystem mFiles;
};

TEST_F(ProfileTest, MissingFileSectionOrKeyGivesTheDefault) {
  EXPECT_EQ(Get("TW", "EnableFX", "dflt"), "dflt");
  EXPECT_EQ(Get("TW", "EnableFX"), "");
  mFiles.Write(kFile, "[Other]\r\nEnableFX=1\r\n");
  EXPECT_EQ(Get("TW", "EnableFX", "dflt"), "dflt");
  EXPECT_EQ(Get("Other", "Missing", "dflt"), "dflt");
  mFiles.Write(kFile, "EnableFX=1\r\n");  // an entry before any section belongs to none
  EXPECT_EQ(Get("TW", "EnableFX", "dflt"), "dflt");
}

TEST_F(ProfileTest, SectionAndKeyMatchWithoutRegardToCase) {
  mFiles.Write(kFile, "[tW]\r\nENABLEfx=yes\r\n");
  EXPECT_EQ(Get("TW", "EnableFX"), "yes");
  EXPECT_EQ(Get("tw", "enablefx"), "yes");
}

TEST_F(ProfileTest, BlanksAroundNamesAndValuesAreDropped) {
  mFiles.Write(kFile, "  [ TW ]  \r\n   EnableFX   =   a b c   \r\n\tEnableMusic\t=\tx\t\r\n");
  EXPECT_EQ(Get("TW", "EnableFX"), "a b c");
  EXPECT_EQ(Get("TW", "EnableMusic"), "x");
}

TEST_F(ProfileTest, MatchingQuotesAreRemoved) {
  mFiles.Write(kFile, "[TW]\nA=\"quoted value\"\nB='single'\nC=\"mixed'\nD=\"\nE=\"\"\nF= \" padded \" \n");
  EXPECT_EQ(Get("TW", "A"), "quoted value");
  EXPECT_EQ(Get("TW", "B"), "single");
  EXPECT_EQ(Get("TW", "C"), "\"mixed'");
  EXPECT_EQ(Get("TW", "D"), "\"");
  EXPECT_EQ(Get("TW", "E", "dflt"), "");
  EXPECT_EQ(Get("TW", "F"), " padded ");
}

TEST_F(ProfileTest, ValueIsCutToOneLessThanTheBuffer) {
  const std::string value(2047, 'x');
  mFiles.Write(kFile, "[TW]\nExact=" + value + "\nOver=" + value + "yz\n");
  EXPECT_EQ(Get("TW", "Exact"), value);
  EXPECT_EQ(Get("TW", "Over"), value);
  EXPECT_EQ(Get("TW", "Over", "", 5), "xxxx");
  EXPECT_EQ(Get("TW", "Missing", "long default", 5), "long");
}

TEST_F(ProfileTest, HugeValueAndGarbageLinesDoNotDisturbTheRest) {
  std::string text = "\xff\xfe garbage\r\n[TW]\r\n=novalue\r\n;EnableFX=commented\r\n";
  text += "Huge=" + std::string(1 << 16, 'h') + "\r\n";
  text += "no equals sign here\r\n]odd[\r\nEnableFX=True\r\n";
  mFiles.Write(kFile, text);
  EXPECT_EQ(Get("TW", "EnableFX"), "True");
  EXPECT_EQ(Get("TW", "Huge").size(), 2047u);
  EXPECT_EQ(Get("TW", ";EnableFX", "none"), "none");
}

TEST_F(ProfileTest, FirstSectionAndFirstKeyOfANameWin) {
  mFiles.Write(kFile, "[TW]\nA=1\nA=2\n[Other]\nA=3\n[TW]\nA=4\nB=5\n");
  EXPECT_EQ(Get("TW", "A"), "1");
  EXPECT_EQ(Get("Other", "A"), "3");
}

TEST_F(ProfileTest, UnreadableFileGivesTheDefaultAndIsNotWritten) {
  mFiles.AddUnreadable(kFile);
  EXPECT_EQ(Get("TW", "A", "dflt"), "dflt");
  EXPECT_FALSE(PortableProfile().WritePrivateProfileStringA("TW", "A", "1", kFile));
}

TEST_F(ProfileTest, WriteCreatesTheFileAndReadsBack) {
  EXPECT_TRUE(PortableProfile().WritePrivateProfileStringA("TW", "EnableFX", "False", kFile));
  EXPECT_EQ(mFiles.Contents(kFile), "[TW]\r\nEnableFX=False\r\n");
  EXPECT_TRUE(PortableProfile().WritePrivateProfileStringA("tw", "EnableMusic", "True", kFile));
  EXPECT_EQ(Get("TW", "EnableFX"), "False");
  EXPECT_EQ(Get("TW", "EnableMusic"), "True");
}

TEST_F(ProfileTest, WriteReplacesOneValueAndKeepsEveryOtherLine) {
  mFiles.Write(kFile,
               "; made by hand\r\n[Other]\r\nEnableFX=7\r\n\r\n[TW]\r\n  enablefx = True \r\nX=1\r\n\r\n");
  EXPECT_TRUE(PortableProfile().WritePrivateProfileStringA("TW", "EnableFX", "False", kFile));
  EXPECT_TRUE(PortableProfile().WritePrivateProfileStringA("TW", "New", "v", kFile));
  EXPECT_TRUE(PortableProfile().WritePrivateProfileStringA("Third", "K", "w", kFile));
  EXPECT_EQ(mFiles.Contents(kFile),
            "; made by hand\r\n[Other]\r\nEnableFX=7\r\n\r\n[TW]\r\nEnableFX=False\r\nX=1\r\nNew=v\r\n\r\n"
            "[Third]\r\nK=w\r\n");
  EXPECT_EQ(Get("Other", "EnableFX"), "7");
}

TEST(ProfileOnDisk, WriteReplacesTheFileWholeAndLeavesNothingBehind) {
  testing::TempDir dir;
  dir.Write("UserInfo/Tallowick.cfg", "[TW]\nEnableFX=True\n; keep me\n");
  const std::string file = dir.Path() + "\\UserInfo\\Tallowick.cfg";
  // A second name for the old file: a file rewritten in place would change
  // under it too.
  std::filesystem::create_hard_link(dir.Path() + "/UserInfo/Tallowick.cfg", dir.Path() + "/old.cfg");
  ASSERT_TRUE(PortableProfile().WritePrivateProfileStringA("TW", "EnableFX", "False", file));
  std::ifstream in(dir.Path() + "/UserInfo/Tallowick.cfg", std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  EXPECT_EQ(text.str(), "[TW]\r\nEnableFX=False\r\n; keep me\r\n");
  // A new file took the old one's place: readers never see it half written.
  std::ifstream old(dir.Path() + "/old.cfg", std::ios::binary);
  std::stringstream oldText;
  oldText << old.rdbuf();
  EXPECT_EQ(oldText.str(), "[TW]\nEnableFX=True\n; keep me\n");
  int entries = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(dir.Path() + "/UserInfo"))
    ++entries;
  EXPECT_EQ(entries, 1);  // no temporary file left
  char buffer[16];
  EXPECT_EQ(PortableProfile().GetPrivateProfileStringA("TW", "EnableFX", "", buffer, 16, file), 5);
  EXPECT_STREQ(buffer, "False");
}

TEST(ProfileOnDisk, WriteIntoAMissingDirectoryFailsWithoutHarm) {
  testing::TempDir dir;
  EXPECT_FALSE(PortableProfile().WritePrivateProfileStringA("TW", "A", "1", dir.Path() + "\\nowhere\\x.cfg"));
}

}  // namespace
}  // namespace jeerbox
