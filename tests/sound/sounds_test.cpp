#include "helpers/silent_audio_control.h"
#include "sound/MSounds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

#include "helpers/fake_file_system.h"
#include "helpers/recording_audio_control.h"
#include "helpers/scripted_random.h"
#include "sound/FDMC.h"
#include "support/globals.h"

namespace jeerbox {
namespace {

using ::testing::ElementsAre;
using testing::RecordingAudioControl;

const std::string kMedia = "C:\\app\\Media\\";

class SoundsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    gAppPath = "C:\\app";
    SetSwitches(true);
  }
  void TearDown() override { gFDMC = nullptr; }

  // A fresh audio form with effects on or off; the random draw of its pan
  // comes from the script as well, so tests give two values per play.
  void SetSwitches(bool fx) {
    mFiles.Write("C:\\app\\UserInfo\\Tallowick.cfg",
                 std::string("[TW]\r\nEnableMusic=False\r\nEnableFX=") + (fx ? "True" : "False") + "\r\n");
    mForm = std::make_unique<FDMC>(mControl, mDevices);
    mForm->Setup();
    gFDMC = mForm.get();
    mControl.ClearLog();
  }

  void Media(const std::string& name) { mFiles.Write(kMedia + name, "data"); }

  // The file the form loaded for one PlaySoundFX with the given draw, or ""
  // when nothing was loaded.
  std::string PlayWith(float draw, const std::string& name = "misc_laugh") {
    testing::ScriptedRandom random({draw, 0.0f});
    mControl.ClearLog();
    PlaySoundFX(name);
    const std::vector<std::string> loads = mControl.Matching("LoadChannel(");
    if (loads.empty()) return "";
    const std::string& entry = loads.back();
    return entry.substr(12 + kMedia.size(), entry.size() - 13 - kMedia.size());
  }

  // Every file picked over draws spread across [0, 1).
  std::set<std::string> PickedOverDraws() {
    std::set<std::string> picked;
    for (int i = 0; i < 100; ++i) picked.insert(PlayWith(static_cast<float>(i) / 100.0f));
    picked.insert(PlayWith(0.99999994f));  // the largest value below 1
    return picked;
  }

  testing::FakeFileSystem mFiles;
  RecordingAudioControl mControl;
  FixedWaveDevices mDevices{1};
  std::unique_ptr<FDMC> mForm;
};

TEST_F(SoundsTest, BuildMediaPathAddsNumbersFromOneAndTheExtension) {
  EXPECT_EQ(BuildMediaPath("misc_laugh", 0, "mp3"), "C:\\app\\Media\\misc_laugh.mp3");
  EXPECT_EQ(BuildMediaPath("misc_laugh", -3, "wav"), "C:\\app\\Media\\misc_laugh.wav");
  EXPECT_EQ(BuildMediaPath("misc_laugh", 1, ".wav"), "C:\\app\\Media\\misc_laugh1.wav");
  EXPECT_EQ(BuildMediaPath("misc_laugh", 12, "mp3"), "C:\\app\\Media\\misc_laugh12.mp3");
}

TEST_F(SoundsTest, FindMediaFilePrefersMp3AndFallsBackToWavEvenWhenMissing) {
  Media("a1.mp3");
  Media("a1.wav");
  Media("b.wav");
  EXPECT_EQ(FindMediaFile("a", 1), kMedia + "a1.mp3");
  EXPECT_EQ(FindMediaFile("b", 0), kMedia + "b.wav");
  EXPECT_EQ(FindMediaFile("c", 0), kMedia + "c.wav");
}

TEST_F(SoundsTest, DrawMapsOntoVariantsOneToCount) {
  Media("misc_laugh1.mp3");
  Media("misc_laugh2.wav");
  Media("misc_laugh3.mp3");
  EXPECT_EQ(PlayWith(0.0f), "misc_laugh1.mp3");
  EXPECT_EQ(PlayWith(0.34f), "misc_laugh2.wav");
  EXPECT_EQ(PlayWith(0.67f), "misc_laugh3.mp3");
  EXPECT_EQ(PlayWith(0.99999994f), "misc_laugh3.mp3");
}

TEST_F(SoundsTest, TwoVariantsAreBothPickedAndNothingElse) {
  Media("misc_laugh1.wav");
  Media("misc_laugh2.mp3");
  EXPECT_THAT(PickedOverDraws(), ElementsAre("misc_laugh1.wav", "misc_laugh2.mp3"));
}

TEST_F(SoundsTest, VariantsAreCountedUpToTheFirstGap) {
  Media("misc_laugh1.mp3");
  Media("misc_laugh3.mp3");
  Media("misc_laugh4.wav");
  EXPECT_THAT(PickedOverDraws(), ElementsAre("misc_laugh1.mp3"));
}

TEST_F(SoundsTest, Mp3WinsOverWavForTheSameVariant) {
  Media("misc_laugh1.wav");
  Media("misc_laugh1.mp3");
  Media("misc_laugh2.wav");
  Media("misc_laugh2.mp3");
  EXPECT_THAT(PickedOverDraws(), ElementsAre("misc_laugh1.mp3", "misc_laugh2.mp3"));
}

TEST_F(SoundsTest, VariantsWinOverTheSingleFile) {
  Media("misc_laugh.mp3");
  Media("misc_laugh1.wav");
  EXPECT_THAT(PickedOverDraws(), ElementsAre("misc_laugh1.wav"));
}

TEST_F(SoundsTest, SingleFileIsPlayedWithoutADraw) {
  Media("misc_laugh.wav");
  testing::ScriptedRandom random({0.0f});
  PlaySoundFX("misc_laugh");
  EXPECT_THAT(mControl.Matching("LoadChannel"), ElementsAre("LoadChannel(" + kMedia + "misc_laugh.wav)"));
  EXPECT_EQ(random.Reseeds(), 0);
  EXPECT_EQ(random.Draws(), 1);  // the pan's only
}

TEST_F(SoundsTest, NothingOnDiskIsSilence) {
  Media("other1.wav");
  testing::ScriptedRandom random({0.0f});
  PlaySoundFX("misc_laugh");
  EXPECT_TRUE(mControl.Log().empty());
  EXPECT_EQ(random.Draws(), 0);
  EXPECT_EQ(mForm->FXChannel(), 0);
}

TEST_F(SoundsTest, EffectsOffStillSelectsThenPlaysNothing) {
  Media("misc_laugh1.wav");
  Media("misc_laugh2.wav");
  SetSwitches(false);
  testing::ScriptedRandom random({0.9f});
  mFiles.ClearLog();
  PlaySoundFX("misc_laugh");
  EXPECT_TRUE(mControl.Log().empty());
  EXPECT_EQ(random.Reseeds(), 1);
  EXPECT_EQ(random.Draws(), 1);
  // Counted to the gap at 3, then the pick looked up again.
  const std::vector<std::string>& touched = mFiles.Touched();
  EXPECT_NE(std::find(touched.begin(), touched.end(), kMedia + "misc_laugh3.wav"), touched.end());
  EXPECT_EQ(touched.back(), kMedia + "misc_laugh2.mp3");
}

TEST_F(SoundsTest, OnlyEffectsAndModeOnePlay) {
  Media("misc_laugh.wav");
  mFiles.Write("C:\\app\\UserInfo\\Tallowick.cfg", "[TW]\r\nEnableMusic=True\r\nEnableFX=True\r\n");
  mForm->Setup();
  mControl.ClearLog();
  PlaySoundFile("misc_laugh", true, false, 0);
  EXPECT_THAT(mControl.Log(), ElementsAre());
  PlaySoundFile("misc_laugh", true, false, 1);
  EXPECT_THAT(mControl.Matching("LoadMusic"), ElementsAre("LoadMusic(" + kMedia + "misc_laugh.wav)"));
  EXPECT_THAT(mControl.Matching("PlayMusic"), ElementsAre("PlayMusic(true)"));
}

TEST_F(SoundsTest, NoAudioFormIsSilence) {
  Media("misc_laugh.wav");
  gFDMC = nullptr;
  PlaySoundFX("misc_laugh");
  EXPECT_TRUE(mControl.Log().empty());
}

}  // namespace
}  // namespace jeerbox
