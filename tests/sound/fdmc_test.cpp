#include "sound/FDMC.h"
#include "helpers/silent_audio_control.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "helpers/fake_file_system.h"
#include "helpers/recording_audio_control.h"
#include "helpers/scripted_random.h"
#include "support/globals.h"
#include "support/random.h"

namespace jeerbox {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using testing::RecordingAudioControl;
using testing::SweepCalls;

const char* const kConfig = "C:\\app\\UserInfo\\Tallowick.cfg";
const char* const kLaugh = "C:\\app\\Media\\misc_laugh1.wav";
const char* const kOpen = "OpenMixer(0,44100,false,false)";

std::vector<std::string> Joined(std::vector<std::string> a, const std::vector<std::string>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

class FDMCTest : public ::testing::Test {
 protected:
  void SetUp() override {
    gAppPath = "C:\\app";
    mFiles.Write(kLaugh, "RIFF");
  }

  void WriteSwitches(const std::string& fx, const std::string& music) {
    mFiles.Write(kConfig, "[TW]\r\nEnableFX=" + fx + "\r\nEnableMusic=" + music + "\r\n");
  }

  testing::FakeFileSystem mFiles;
  RecordingAudioControl mControl;
  FixedWaveDevices mOneDevice{1};
  FixedWaveDevices mNoDevice{0};
};

// Centre for a first draw below one half; otherwise a second draw picks the side.
std::vector<std::string> EffectCalls(int channel, int pan, const std::string& file) {
  return {"Channel=" + std::to_string(channel),
          "StopChannel",
          "ClearChannel",
          "ChannelPan=" + std::to_string(pan),
          "LoadChannel(" + file + ")",
          "PlayChannel(false)"};
}

TEST_F(FDMCTest, BothSwitchesOffOnlyResetsTheMixerInSetupAndUnload) {
  WriteSwitches("False", "False");
  testing::ScriptedRandom random({0.0f});
  FDMC form(mControl, mOneDevice);
  form.Setup();
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer"));
  form.PlayGameSoundFX(kLaugh);
  form.StopAllFX();
  form.PlayGameSoundBG(kLaugh, true);
  form.PauseGameSoundBG();
  form.ResumeGameSoundBG();
  form.Shutdown();
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer"));
  form.Form_Unload();
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer", "ResetMixer"));
  EXPECT_EQ(random.Draws(), 0);
}

// Each combination with at least one switch on opens the mixer and sweeps
// all 32 channels on the way out, whatever the switch.
class OneSwitchOnTest : public FDMCTest,
                        public ::testing::WithParamInterface<std::tuple<std::string, std::string>> {};

TEST_P(OneSwitchOnTest, OpensTheMixerAndSweepsAllChannelsOnShutdown) {
  WriteSwitches(std::get<0>(GetParam()), std::get<1>(GetParam()));
  FDMC form(mControl, mOneDevice);
  form.Setup();
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer", kOpen));
  mControl.ClearLog();
  form.Shutdown();
  EXPECT_THAT(mControl.Log(),
              ElementsAreArray(Joined(Joined({"ResetMixer"}, SweepCalls()), {"CloseMusic", "CloseMixer"})));
  mControl.ClearLog();
  form.Form_Unload();
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer"));
}

INSTANTIATE_TEST_SUITE_P(Switches, OneSwitchOnTest,
                         ::testing::Values(std::make_tuple("True", "False"), std::make_tuple("false", "TRUE"),
                                           std::make_tuple("1", "1"), std::make_tuple("-1", "0")),
                         [](const auto& param) { return "Case" + std::to_string(param.index); });

TEST_F(FDMCTest, MusicAloneOpensTheMixerButPlaysNoEffect) {
  WriteSwitches("False", "True");
  testing::ScriptedRandom random({0.0f});
  FDMC form(mControl, mOneDevice);
  form.Setup();
  mControl.ClearLog();
  form.PlayGameSoundFX(kLaugh);
  form.StopAllFX();
  EXPECT_TRUE(mControl.Log().empty());
  EXPECT_EQ(form.FXChannel(), 0);
  form.Shutdown();
  EXPECT_EQ(mControl.Matching("StopChannel").size(), 32u);
}

TEST_F(FDMCTest, NoWaveDeviceTurnsBothSwitchesOff) {
  WriteSwitches("True", "True");
  FDMC form(mControl, mNoDevice);
  form.Setup();
  EXPECT_FALSE(form.EnableFX());
  EXPECT_FALSE(form.EnableMusic());
  form.PlayGameSoundFX(kLaugh);
  form.Shutdown();
  form.Form_Unload();
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer", "ResetMixer"));
}

TEST_F(FDMCTest, MissingSettingsFileMeansBothOn) {
  mFiles.Remove(kConfig);
  FDMC form(mControl, mOneDevice);
  form.Setup();
  EXPECT_TRUE(form.EnableFX());
  EXPECT_TRUE(form.EnableMusic());
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer", kOpen));
}

TEST_F(FDMCTest, UnreadableSwitchTextKeepsTheDefault) {
  WriteSwitches("maybe", "");
  FDMC form(mControl, mOneDevice);
  form.Setup();
  EXPECT_TRUE(form.EnableFX());
  EXPECT_TRUE(form.EnableMusic());
}

TEST_F(FDMCTest, WindowHandleGoesToOpenMixer) {
  FDMC form(mControl, mOneDevice);
  form.SetWindowHandle(77);
  form.Setup();
  EXPECT_THAT(mControl.Log(), ElementsAre("ResetMixer", "OpenMixer(77,44100,false,false)"));
}

TEST_F(FDMCTest, NineEffectsUseChannelsOneToEightThenOne) {
  testing::ScriptedRandom random({0.0f});  // every pan central
  FDMC form(mControl, mOneDevice);
  form.Setup();
  mControl.ClearLog();
  std::vector<std::string> expected;
  for (int i = 1; i <= 9; ++i) {
    form.PlayGameSoundFX(kLaugh);
    expected = Joined(expected, EffectCalls(i > 8 ? 1 : i, 0, kLaugh));
  }
  EXPECT_THAT(mControl.Log(), ElementsAreArray(expected));
  EXPECT_EQ(form.FXChannel(), 1);
}

TEST_F(FDMCTest, MissingFileIsSilentAndDoesNotAdvanceTheChannel) {
  testing::ScriptedRandom random({0.0f});
  FDMC form(mControl, mOneDevice);
  form.Setup();
  mControl.ClearLog();
  form.PlayGameSoundFX("C:\\app\\Media\\nothing.wav");
  EXPECT_TRUE(mControl.Log().empty());
  EXPECT_EQ(form.FXChannel(), 0);
  EXPECT_EQ(random.Draws(), 0);
  form.PlayGameSoundFX(kLaugh);
  EXPECT_THAT(mControl.Log(), ElementsAreArray(EffectCalls(1, 0, kLaugh)));
}

TEST_F(FDMCTest, PanIsCentreForALowFirstDrawElseTheSecondDrawPicksTheSide) {
  // Chance(0.5) holds for draws below one half.
  testing::ScriptedRandom random({0.49f, 0.5f, 0.49f, 0.5f, 0.5f, 0.0f});
  FDMC form(mControl, mOneDevice);
  form.Setup();
  for (int i = 0; i < 4; ++i) form.PlayGameSoundFX(kLaugh);
  EXPECT_THAT(mControl.Matching("ChannelPan"),
              ElementsAre("ChannelPan=0", "ChannelPan=-90", "ChannelPan=90", "ChannelPan=0"));
  EXPECT_EQ(random.Draws(), 6);
}

TEST_F(FDMCTest, PanSharesAreHalfCentreAndAQuarterEachSide) {
  SeedRandom(20260101);
  FDMC form(mControl, mOneDevice);
  form.Setup();
  constexpr int kEffects = 8000;
  for (int i = 0; i < kEffects; ++i) form.PlayGameSoundFX(kLaugh);
  std::map<std::string, int> counts;
  for (const std::string& entry : mControl.Matching("ChannelPan")) ++counts[entry];
  ASSERT_EQ(counts.size(), 3u);
  EXPECT_NEAR(counts["ChannelPan=0"] / double(kEffects), 0.5, 0.03);
  EXPECT_NEAR(counts["ChannelPan=-90"] / double(kEffects), 0.25, 0.03);
  EXPECT_NEAR(counts["ChannelPan=90"] / double(kEffects), 0.25, 0.03);
}

TEST_F(FDMCTest, FailingControlCallsNeverStopTheNextOne) {
  testing::ScriptedRandom random({0.0f});
  mControl.FailEverything();
  FDMC form(mControl, mOneDevice);
  form.Setup();
  form.PlayGameSoundFX(kLaugh);
  form.PlayGameSoundBG(kLaugh, true);
  form.Shutdown();
  std::vector<std::string> expected = Joined({"ResetMixer", kOpen}, EffectCalls(1, 0, kLaugh));
  expected = Joined(expected,
                    {"StopMusic", "CloseMusic", "LoadMusic(" + std::string(kLaugh) + ")", "PlayMusic(true)"});
  expected = Joined(Joined(expected, Joined({"ResetMixer"}, SweepCalls())), {"CloseMusic", "CloseMixer"});
  EXPECT_THAT(mControl.Log(), ElementsAreArray(expected));
}

TEST_F(FDMCTest, PauseAndResumeAskTheControlFirstAndRunWhenTheAnswerFails) {
  FDMC form(mControl, mOneDevice);
  form.Setup();
  mControl.ClearLog();
  mControl.SetMusicCanPause(false);
  mControl.SetMusicCanResume(false);
  form.PauseGameSoundBG();
  form.ResumeGameSoundBG();
  EXPECT_THAT(mControl.Log(), ElementsAre("MusicCanPause", "MusicCanResume"));
  mControl.ClearLog();
  mControl.SetMusicCanPause(true);
  mControl.SetMusicCanResume(true);
  form.PauseGameSoundBG();
  form.ResumeGameSoundBG();
  EXPECT_THAT(mControl.Log(), ElementsAre("MusicCanPause", "PauseMusic", "MusicCanResume", "ResumeMusic"));
  mControl.ClearLog();
  mControl.SetMusicCanPause(false);
  mControl.SetMusicCanResume(false);
  mControl.Fail("MusicCanPause");
  mControl.Fail("MusicCanResume");
  form.PauseGameSoundBG();
  form.ResumeGameSoundBG();
  EXPECT_THAT(mControl.Log(), ElementsAre("MusicCanPause", "PauseMusic", "MusicCanResume", "ResumeMusic"));
}

TEST_F(FDMCTest, MusicPlaysOnlyAnExistingFileAfterStoppingTheLastOne) {
  FDMC form(mControl, mOneDevice);
  form.Setup();
  mControl.ClearLog();
  form.PlayGameSoundBG("C:\\app\\Media\\nothing.mp3", false);
  EXPECT_TRUE(mControl.Log().empty());
  form.PlayGameSoundBG(kLaugh, false);
  EXPECT_THAT(mControl.Log(), ElementsAre("StopMusic", "CloseMusic", "LoadMusic(" + std::string(kLaugh) + ")",
                                          "PlayMusic(false)"));
}

TEST_F(FDMCTest, StopAllFXSweepsAllChannelsWhenEffectsAreOn) {
  WriteSwitches("True", "False");
  FDMC form(mControl, mOneDevice);
  form.Setup();
  mControl.ClearLog();
  form.StopAllFX();
  EXPECT_THAT(mControl.Log(), ElementsAreArray(SweepCalls()));
}

TEST(HasWaveDevice, NeedsAtLeastOneDevice) {
  FixedWaveDevices none(0), one(1);
  EXPECT_FALSE(HasWaveDevice(none));
  EXPECT_TRUE(HasWaveDevice(one));
}

}  // namespace
}  // namespace jeerbox
