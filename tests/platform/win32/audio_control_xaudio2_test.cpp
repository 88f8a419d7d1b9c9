// The XAudio2 mixer control under Wine, whose one wave device is ALSA's
// null output (the Wine wrapper's setting): sounds play, in real time, and
// drain; the contract every host's control keeps; the pan matrix.
#include "platform/win32/audio_control_xaudio2.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <thread>

#include "platform/audio_control_contract.h"

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

TEST(XAudio2Control, KeepsTheContractInEveryState) {
  XAudio2Control control;
  testing::CheckAudioControlContract(control, kMedia + "\\misc_laugh2.wav");
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
