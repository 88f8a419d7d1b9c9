// Sound on a recording mixer: which media file a draw picks among the
// variants on disk, what the switches and the wave devices turn on, the
// effect channels, the pan draws, and the calls that go on after a failed one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "helpers/fake_file_system.h"
#include "helpers/recording_audio_control.h"
#include "helpers/scripted_random.h"
#include "sound/FDMC.h"
#include "sound/MSounds.h"
#include "support/globals.h"

namespace jeerbox {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using testing::RecordingAudioControl;
using testing::SweepCalls;
using Calls = std::vector<std::string>;

const std::string kMedia = "C:\\app\\Media\\";
const std::string kLaugh = kMedia + "misc_laugh1.wav";

Calls Joined(Calls a, const Calls& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// The calls of one effect.
Calls EffectCalls(int channel, int pan) {
  return {"Channel=" + std::to_string(channel),
          "StopChannel",
          "ClearChannel",
          "ChannelPan=" + std::to_string(pan),
          "LoadChannel(" + kLaugh + ")",
          "PlayChannel(false)"};
}

class Sound : public ::testing::Test {
 protected:
  void SetUp() override {
    gAppPath = "C:\\app";
    mFiles.Write(kLaugh, "RIFF");
  }
  void TearDown() override { gFDMC = nullptr; }
  // The settings file with the switches given, or none.
  void Switches(const char* fx, const char* music) {
    if (!fx) return mFiles.Remove("C:\\app\\UserInfo\\Tallowick.cfg");
    mFiles.Write("C:\\app\\UserInfo\\Tallowick.cfg",
                 std::string("[TW]\r\nEnableFX=") + fx + "\r\nEnableMusic=" + music + "\r\n");
  }
  // The form set up as gFDMC (every pan central), the log cleared.
  void Start(const char* fx = "True", const char* music = "True") {
    Switches(fx, music);
    mForm.Setup();
    gFDMC = &mForm;
    mControl.ClearLog();
  }

  testing::FakeFileSystem mFiles;
  testing::ScriptedRandom mRandom{{0.0f}};
  RecordingAudioControl mControl;
  FixedWaveDevices mDevices{1};
  FDMC mForm{mControl, mDevices};
};

// Variants run from 1 up to the first gap, mp3 before wav; a draw d picks
// variant floor(d * count) + 1, after one reseed. Without a variant 1 the
// plain name plays, with no draw of its own.
TEST_F(Sound, DrawPicksAVariantUpToTheFirstGapMp3First) {
  Start();
  const struct {
    const char* name;
    std::vector<const char*> files;
    float draw;
    const char* picked;
  } cases[] = {
      {"first of three", {"1.mp3", "2.wav", "3.mp3"}, 0.0f, "1.mp3"},
      {"second of three", {"1.mp3", "2.wav", "3.mp3"}, 0.34f, "2.wav"},
      {"third of three", {"1.mp3", "2.wav", "3.mp3"}, 0.67f, "3.mp3"},
      {"the largest draw", {"1.mp3", "2.wav", "3.mp3"}, 0.99999994f, "3.mp3"},
      {"a gap ends the count", {"1.mp3", "3.mp3", "4.wav"}, 0.99999994f, "1.mp3"},
      {"mp3 wins over wav", {"1.wav", "1.mp3", "2.wav", "2.mp3"}, 0.99f, "2.mp3"},
      {"variants win over the plain name", {".mp3", "1.wav"}, 0.99f, "1.wav"},
      {"the plain name alone", {".wav"}, 0.0f, ".wav"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    testing::FakeFileSystem files;
    for (const char* file : c.files) files.Write(kMedia + "misc_laugh" + file, "data");
    testing::ScriptedRandom random({c.draw, 0.0f});
    mControl.ClearLog();
    PlaySoundFX("misc_laugh");
    EXPECT_THAT(mControl.Matching("LoadChannel"),
                ElementsAre("LoadChannel(" + kMedia + "misc_laugh" + c.picked + ")"));
    const bool variants = std::string(c.picked) != ".wav";
    EXPECT_EQ(random.Reseeds(), variants ? 1 : 0);
    EXPECT_EQ(random.Draws(), variants ? 2 : 1);  // the pan takes one
  }
}

// The pick is made, draw and all, whether the form plays it or not; music
// plays in mode 1 only; without the form, nothing plays.
TEST_F(Sound, SelectionGoesToEffectsMusicOrNowhere) {
  Start("False", "False");
  PlaySoundFX("misc_laugh");
  EXPECT_TRUE(mControl.Log().empty());
  EXPECT_EQ(mRandom.Reseeds(), 1);
  EXPECT_EQ(mRandom.Draws(), 1);
  Start();
  PlaySoundFile("misc_laugh", true, false, 0);
  EXPECT_TRUE(mControl.Log().empty());
  PlaySoundFile("misc_laugh", true, false, 1);
  EXPECT_THAT(mControl.Matching("LoadMusic"), ElementsAre("LoadMusic(" + kLaugh + ")"));
  EXPECT_THAT(mControl.Matching("PlayMusic"), ElementsAre("PlayMusic(true)"));
  mControl.ClearLog();
  gFDMC = nullptr;
  PlaySoundFX("misc_laugh");
  EXPECT_TRUE(mControl.Log().empty());
}

// The mixer opens when either switch is on and a device is there; the stop
// sweeps run only then, effects and music only with their own switch, and
// pause and resume only when the control says they can.
TEST_F(Sound, SwitchesAndTheDeviceDecideWhatRuns) {
  const struct {
    const char *name, *fx, *music;
    unsigned devices;
    bool fxOn, musicOn;
  } cases[] = {
      {"both off", "False", "False", 1, false, false}, {"effects", "True", "False", 1, true, false},
      {"music", "False", "True", 1, false, true},      {"no settings file", nullptr, nullptr, 1, true, true},
      {"unreadable", "maybe", "", 1, true, true},      {"no wave device", "True", "True", 0, false, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Switches(c.fx, c.music);
    RecordingAudioControl control;
    FixedWaveDevices devices(c.devices);
    FDMC form(control, devices);
    form.Setup();
    EXPECT_EQ(form.EnableFX(), c.fxOn);
    EXPECT_EQ(form.EnableMusic(), c.musicOn);
    const bool open = c.fxOn || c.musicOn;
    EXPECT_EQ(control.Log().front(), "ResetMixer");
    EXPECT_EQ(control.Log().size(), open ? 2u : 1u);
    EXPECT_EQ(control.Matching("OpenMixer").size(), open ? 1u : 0u);
    control.ClearLog();
    control.SetMusicCanResume(false);
    form.PlayGameSoundFX(kLaugh);
    form.StopAllFX();
    form.PauseGameSoundBG();
    form.ResumeGameSoundBG();
    EXPECT_EQ(control.Log(),
              Joined(c.fxOn ? Joined(EffectCalls(1, 0), SweepCalls()) : Calls{},
                     c.musicOn ? Calls{"MusicCanPause", "PauseMusic", "MusicCanResume"} : Calls{}));
    control.ClearLog();
    form.Shutdown();
    form.Form_Unload();
    EXPECT_EQ(control.Log(),
              open ? Joined(Joined({"ResetMixer"}, SweepCalls()), {"CloseMusic", "CloseMixer", "ResetMixer"})
                   : Calls{"ResetMixer"});
  }
}

// A file that can't be played takes no channel and no draw.
TEST_F(Sound, EffectsUseChannelsOneToEightThenOneAgainAndAMissingFileNone) {
  Start();
  mForm.PlayGameSoundFX(kMedia + "nothing.wav");
  EXPECT_TRUE(mControl.Log().empty());
  EXPECT_EQ(mRandom.Draws(), 0);
  Calls expected;
  for (int i = 1; i <= 9; ++i) {
    mForm.PlayGameSoundFX(kLaugh);
    expected = Joined(expected, EffectCalls(i > 8 ? 1 : i, 0));
  }
  EXPECT_THAT(mControl.Log(), ElementsAreArray(expected));
}

// Centre for a first draw below one half; otherwise a second draw picks the side.
TEST_F(Sound, PanIsCentreForALowFirstDrawElseTheSecondDrawPicksTheSide) {
  Start();
  const std::pair<std::vector<float>, int> cases[] = {{{0.49f}, 0}, {{0.5f, 0.49f}, -90}, {{0.5f, 0.5f}, 90}};
  for (const auto& [draws, pan] : cases) {
    testing::ScriptedRandom random(draws);
    mControl.ClearLog();
    mForm.PlayGameSoundFX(kLaugh);
    EXPECT_THAT(mControl.Matching("ChannelPan"), ElementsAre("ChannelPan=" + std::to_string(pan)));
    EXPECT_EQ(random.Draws(), static_cast<int>(draws.size())) << pan;
  }
}

// Music plays only a file that exists, after stopping the last one; pause
// and resume run when the control can't say whether they can.
TEST_F(Sound, FailingControlCallsNeverStopTheNextOne) {
  mControl.FailEverything();
  mForm.Setup();
  mForm.PlayGameSoundFX(kLaugh);
  mForm.PlayGameSoundBG(kMedia + "nothing.mp3", true);
  mForm.PlayGameSoundBG(kLaugh, true);
  mForm.PauseGameSoundBG();
  mForm.ResumeGameSoundBG();
  mForm.Shutdown();
  Calls expected = Joined(Joined({"ResetMixer"}, mControl.Matching("OpenMixer")), EffectCalls(1, 0));
  expected = Joined(expected, {"StopMusic", "CloseMusic", "LoadMusic(" + kLaugh + ")", "PlayMusic(true)",
                               "MusicCanPause", "PauseMusic", "MusicCanResume", "ResumeMusic"});
  expected = Joined(Joined(expected, Joined({"ResetMixer"}, SweepCalls())), {"CloseMusic", "CloseMixer"});
  EXPECT_THAT(mControl.Log(), ElementsAreArray(expected));
}

}  // namespace
}  // namespace jeerbox
