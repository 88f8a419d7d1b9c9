// The XAudio2 mixer control under Wine, whose one wave device is ALSA's
// null output (the Wine wrapper's setting): sounds play, in real time, and
// drain; every call is safe in every state.
#include "platform/win32/audio_control_xaudio2.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <thread>

#include "helpers/temp_dir.h"

namespace jeerbox {
namespace {

const std::string kMedia = JEERBOX_MEDIA_DIR;

// True once nothing is queued on `channel`, waiting up to ten seconds.
bool Drains(const XAudio2Control& control, int channel) {
  for (int i = 0; i < 200 && control.IsPlaying(channel); ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  return !control.IsPlaying(channel);
}

TEST(XAudio2Control, EffectsPlayTogetherAndDrain) {
  XAudio2Control control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  const struct {
    int channel;
    int pan;
    const char* file;
  } effects[] = {{1, -90, "misc_laugh2.wav"}, {2, 0, "misc_laugh1.mp3"}, {8, 90, "misc_laugh4.wav"}};
  for (const auto& e : effects) {
    ASSERT_TRUE(control.SetChannel(e.channel));
    ASSERT_TRUE(control.SetChannelPan(e.pan));
    ASSERT_TRUE(control.LoadChannel(kMedia + "\\" + e.file)) << e.file;
    ASSERT_TRUE(control.PlayChannel(false)) << e.file;
  }
  for (const auto& e : effects) EXPECT_TRUE(control.IsPlaying(e.channel)) << e.file;
  for (const auto& e : effects) EXPECT_TRUE(Drains(control, e.channel)) << e.file;
  // Drained, the sound stays loaded and plays again.
  EXPECT_TRUE(control.PlayChannel(false));
  EXPECT_TRUE(control.IsPlaying(8));
  EXPECT_TRUE(control.StopChannel());
  EXPECT_FALSE(control.IsPlaying(8));
}

// Never opened, open with nothing loaded, closed again: each call the audio
// form makes either does its part or refuses, and none gets stuck or breaks.
TEST(XAudio2Control, EveryCallIsSafeInEveryState) {
  XAudio2Control control;
  const std::string laugh = kMedia + "\\misc_laugh2.wav";
  for (const char* state : {"never opened", "open", "closed"}) {
    if (std::string(state) == "open") {
      ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
    } else if (std::string(state) == "closed") {
      EXPECT_TRUE(control.CloseMixer());
    }
    const bool open = control.IsOpen();
    EXPECT_EQ(open, std::string(state) == "open") << state;
    EXPECT_TRUE(control.ResetMixer()) << state;
    EXPECT_FALSE(control.SetChannel(0)) << state;
    for (int channel = 1; channel <= 32; ++channel) {
      ASSERT_TRUE(control.SetChannel(channel)) << state;
      EXPECT_TRUE(control.SetChannelPan(-90)) << state;
      EXPECT_EQ(control.StopChannel(), open) << state << " " << channel;
      EXPECT_EQ(control.ClearChannel(), open) << state << " " << channel;
      EXPECT_FALSE(control.PlayChannel(false)) << state << " " << channel;  // nothing loaded
    }
    EXPECT_TRUE(control.CloseMusic()) << state;
    EXPECT_EQ(control.LoadChannel(laugh), open) << state;
  }
  EXPECT_TRUE(control.ResetMixer());
  EXPECT_TRUE(control.CloseMixer());
}

// A file that isn't sound loads nothing, and the channel keeps what it had.
TEST(XAudio2Control, FilesThatArentSoundLoadNothing) {
  testing::TempDir dir;
  dir.Write("text.wav", "this is not a sound at all\n");
  XAudio2Control control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  ASSERT_TRUE(control.SetChannel(3));
  ASSERT_TRUE(control.LoadChannel(kMedia + "\\misc_laugh4.wav"));
  for (const char* name : {"text.wav", "missing.wav"})
    EXPECT_FALSE(control.LoadChannel(dir.Path() + "\\" + name)) << name;
  EXPECT_TRUE(control.PlayChannel(false));
}

// Mono goes to both sides, stereo side to side; a side pan silences the other.
TEST(PanMatrix, ASidePanSilencesTheOtherSide) {
  const struct {
    int pan, channels;
    float levels[4];
  } cases[] = {
      {0, 1, {1, 1}}, {-90, 1, {1, 0}}, {90, 1, {0, 1}}, {-90, 2, {1, 0, 0, 0}}, {90, 2, {0, 0, 0, 1}}};
  for (const auto& c : cases) {
    float levels[4] = {-1, -1, -1, -1};
    PanMatrix(c.pan, c.channels, levels);
    for (int i = 0; i < c.channels * 2; ++i)
      EXPECT_FLOAT_EQ(levels[i], c.levels[i])
          << "pan " << c.pan << ", " << c.channels << " channels, level " << i;
  }
}

}  // namespace
}  // namespace jeerbox
