// The SDL2_mixer control for real, on SDL's disk driver: what the mixer
// plays lands in a raw file of 16-bit stereo samples, read back here.
#include "platform/sdl/audio_control_sdl.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <thread>

#include "helpers/temp_dir.h"
#include "platform/sdl/audio_sdl.h"
#include "sound/FDMC.h"
#include "sound/MSounds.h"
#include "support/globals.h"

namespace jeerbox {
namespace {

// A mono 16-bit WAV of a sine tone at 22050 Hz: the mixer has to convert it.
std::string ToneWav(double seconds, double frequency = 440.0) {
  const uint32_t rate = 22050;
  const uint32_t samples = static_cast<uint32_t>(seconds * rate);
  std::string data;
  for (uint32_t i = 0; i < samples; ++i) {
    const auto value = static_cast<int16_t>(12000.0 * std::sin(2.0 * M_PI * frequency * i / rate));
    data.push_back(static_cast<char>(value & 0xff));
    data.push_back(static_cast<char>((value >> 8) & 0xff));
  }
  auto u32 = [](uint32_t v) { return std::string{char(v), char(v >> 8), char(v >> 16), char(v >> 24)}; };
  auto u16 = [](uint16_t v) { return std::string{char(v), char(v >> 8)}; };
  return "RIFF" + u32(36 + static_cast<uint32_t>(data.size())) + "WAVEfmt " + u32(16) + u16(1) + u16(1) +
         u32(rate) + u32(rate * 2) + u16(2) + u16(16) + "data" + u32(static_cast<uint32_t>(data.size())) +
         data;
}

struct Energy {
  double left = 0;
  double right = 0;
  int peak = 0;
  int loudFrames = 0;  // either side above a quarter of the tone's level
  int bothLoud = 0;    // both sides at once
};

class SdlAudioTest : public ::testing::Test {
 protected:
  void SetUp() override {
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", (mDir.Path() + "/out.raw").c_str(), 1);
    setenv("SDL_DISKAUDIODELAY", "0", 1);
    mDir.Write("tone.wav", ToneWav(0.3));
    mTone = mDir.Path() + "\\tone.wav";
  }

  // Plays the tone on `channel` with `pan` and waits until it has ended.
  void PlayTone(SdlAudioControl& control, int channel, int pan) {
    ASSERT_TRUE(control.SetChannel(channel));
    ASSERT_TRUE(control.SetChannelPan(pan));
    ASSERT_TRUE(control.LoadChannel(mTone));
    ASSERT_TRUE(control.PlayChannel(false));
  }

  // What the driver wrote for the tone played alone on `channel` with `pan`,
  // the mixer closed again.
  Energy PlayedAlone(int channel, int pan) {
    {
      SdlAudioControl control;
      EXPECT_TRUE(control.OpenMixer(0, 44100, false, false));
      PlayTone(control, channel, pan);
      WaitForQuiet();
    }
    return Written();
  }

  static void WaitForQuiet() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while ((Mix_Playing(-1) > 0 || Mix_PlayingMusic()) && std::chrono::steady_clock::now() < deadline)
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));  // let the last buffers reach the file
  }

  // Sums of squares per side over everything the driver wrote.
  Energy Written() const {
    // Only what is there now: an open mixer keeps the driver writing, and
    // reading to the end would chase a file that never stops growing.
    const std::string path = mDir.Path() + "/out.raw";
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    std::string raw(error ? 0 : size, '\0');
    std::ifstream in(path, std::ios::binary);
    in.read(raw.data(), static_cast<std::streamsize>(raw.size()));
    raw.resize(static_cast<size_t>(in.gcount()));
    Energy energy;
    const auto* samples = reinterpret_cast<const int16_t*>(raw.data());
    for (size_t i = 0; i + 1 < raw.size() / 2; i += 2) {
      energy.left += double(samples[i]) * samples[i];
      energy.right += double(samples[i + 1]) * samples[i + 1];
      const int left = std::abs(int(samples[i])), right = std::abs(int(samples[i + 1]));
      energy.peak = std::max({energy.peak, left, right});
      energy.loudFrames += (left > 3000 || right > 3000) ? 1 : 0;
      energy.bothLoud += (left > 3000 && right > 3000) ? 1 : 0;
    }
    return energy;
  }

  testing::TempDir mDir;
  std::string mTone;
};

TEST_F(SdlAudioTest, OpensSixteenBitStereoAtTheAskedRate) {
  SdlAudioControl control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  ASSERT_TRUE(control.IsOpen());  // the opening runs on the host's thread
  int rate = 0, channels = 0;
  Uint16 format = 0;
  ASSERT_EQ(Mix_QuerySpec(&rate, &format, &channels), 1);
  EXPECT_EQ(rate, 44100);
  EXPECT_EQ(format, AUDIO_S16SYS);
  EXPECT_EQ(channels, 2);
  EXPECT_EQ(Mix_AllocateChannels(-1), 32);
}

TEST_F(SdlAudioTest, PlayedEffectIsHeardOnBothSidesInTheMiddle) {
  const Energy energy = PlayedAlone(1, 0);
  EXPECT_GT(energy.peak, 5000);
  EXPECT_GT(energy.left, 0);
  EXPECT_NEAR(energy.left / energy.right, 1.0, 0.01);
}

TEST_F(SdlAudioTest, PanToTheLeftPutsTheEnergyOnTheLeft) {
  const Energy energy = PlayedAlone(5, -90);
  EXPECT_GT(energy.peak, 5000);
  EXPECT_LT(energy.right, energy.left * 0.001);
}

TEST_F(SdlAudioTest, PanToTheRightPutsTheEnergyOnTheRight) {
  const Energy energy = PlayedAlone(32, 90);
  EXPECT_GT(energy.peak, 5000);
  EXPECT_LT(energy.left, energy.right * 0.001);
}

TEST_F(SdlAudioTest, PanOfAReusedChannelFollowsTheLatestWrite) {
  {
    SdlAudioControl control;
    ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
    PlayTone(control, 2, 90);
    // The channel's old effect must not outlive the sound it was set for.
    ASSERT_TRUE(control.StopChannel());
    ASSERT_TRUE(control.ClearChannel());
    WaitForQuiet();
    mDir.Write("out.raw", "");  // SDL writes on at its offset; the gap reads as zeros
    PlayTone(control, 2, -90);
    WaitForQuiet();
  }
  const Energy energy = Written();
  EXPECT_GT(energy.peak, 5000);
  EXPECT_LT(energy.right, energy.left * 0.001);
}

TEST_F(SdlAudioTest, EffectsOnTwoChannelsSoundTogether) {
  mDir.Write("low.wav", ToneWav(0.3, 220.0));
  {
    SdlAudioControl control;
    ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
    ASSERT_TRUE(control.SetChannel(1));
    ASSERT_TRUE(control.SetChannelPan(-90));
    ASSERT_TRUE(control.LoadChannel(mTone));
    ASSERT_TRUE(control.SetChannel(2));
    ASSERT_TRUE(control.SetChannelPan(90));
    ASSERT_TRUE(control.LoadChannel(mDir.Path() + "\\low.wav"));
    ASSERT_TRUE(control.SetChannel(1));
    ASSERT_TRUE(control.PlayChannel(false));
    ASSERT_TRUE(control.SetChannel(2));
    ASSERT_TRUE(control.PlayChannel(false));
    WaitForQuiet();
  }
  // One tone hard left, the other hard right: most loud frames carry both.
  const Energy energy = Written();
  EXPECT_NEAR(energy.left / energy.right, 1.0, 0.1);
  EXPECT_GT(energy.bothLoud, energy.loudFrames / 2);
}

TEST_F(SdlAudioTest, DecodesMp3) {
  SdlAudioControl control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  ASSERT_TRUE(control.SetChannel(1));
  ASSERT_TRUE(control.LoadChannel(std::string(JEERBOX_MEDIA_DIR) + "/misc_laugh1.mp3"));
  ASSERT_TRUE(control.PlayChannel(false));
  WaitForQuiet();
  control.CloseMixer();
  EXPECT_GT(Written().peak, 3000);
}

TEST_F(SdlAudioTest, MusicSlotPlaysPausesAndResumes) {
  {
    SdlAudioControl control;
    ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
    EXPECT_TRUE(control.StopMusic());  // nothing loaded
    EXPECT_TRUE(control.CloseMusic());
    EXPECT_FALSE(control.PlayMusic(false));
    EXPECT_FALSE(control.LoadMusic(mDir.Path() + "\\missing.mp3"));
    ASSERT_TRUE(control.LoadMusic(mTone));
    // Looping, so that the music can't end between the calls below.
    ASSERT_TRUE(control.PlayMusic(true));
    EXPECT_EQ(control.MusicCanPause(), true);
    EXPECT_EQ(control.MusicCanResume(), false);
    EXPECT_TRUE(control.PauseMusic());
    EXPECT_EQ(control.MusicCanPause(), false);
    EXPECT_EQ(control.MusicCanResume(), true);
    EXPECT_TRUE(control.ResumeMusic());
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_TRUE(control.StopMusic());
    EXPECT_EQ(control.MusicCanPause(), false);
    WaitForQuiet();
    EXPECT_TRUE(control.CloseMusic());
  }
  EXPECT_GT(Written().peak, 5000);
}

TEST_F(SdlAudioTest, EveryCallIsSafeOnAMixerNeverOpened) {
  SdlAudioControl control;
  EXPECT_TRUE(control.ResetMixer());
  EXPECT_TRUE(control.SetChannel(3));
  EXPECT_TRUE(control.SetChannelPan(-90));
  EXPECT_FALSE(control.LoadChannel(mTone));
  EXPECT_FALSE(control.PlayChannel(false));
  EXPECT_FALSE(control.StopChannel());
  EXPECT_FALSE(control.ClearChannel());
  EXPECT_FALSE(control.LoadMusic(mTone));
  EXPECT_FALSE(control.PlayMusic(true));
  EXPECT_FALSE(control.StopMusic());
  EXPECT_FALSE(control.PauseMusic());
  EXPECT_FALSE(control.ResumeMusic());
  EXPECT_EQ(control.MusicCanPause(), std::nullopt);
  EXPECT_EQ(control.MusicCanResume(), std::nullopt);
  EXPECT_TRUE(control.CloseMusic());
  EXPECT_TRUE(control.CloseMixer());
  EXPECT_TRUE(control.ResetMixer());
}

TEST_F(SdlAudioTest, ChannelsOutsideOneToThirtyTwoAreRefusedAndKeepTheLastChoice) {
  SdlAudioControl control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  EXPECT_FALSE(control.SetChannel(0));
  EXPECT_FALSE(control.StopChannel());  // nothing selected yet
  EXPECT_TRUE(control.SetChannel(32));
  EXPECT_FALSE(control.SetChannel(33));
  EXPECT_FALSE(control.SetChannel(-1));
  ASSERT_TRUE(control.LoadChannel(mTone));
  EXPECT_TRUE(control.PlayChannel(false));  // true only when it started on mixer channel 31
}

TEST_F(SdlAudioTest, SweepsAndResetsWorkOnEmptyChannelsAndAfterClosing) {
  SdlAudioControl control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  EXPECT_TRUE(control.ResetMixer());
  for (int channel = 1; channel <= 32; ++channel) {
    ASSERT_TRUE(control.SetChannel(channel));
    EXPECT_TRUE(control.StopChannel());
    EXPECT_TRUE(control.ClearChannel());
    EXPECT_FALSE(control.PlayChannel(false));  // nothing loaded
  }
  EXPECT_FALSE(control.LoadChannel(mDir.Path() + "\\missing.wav"));
  ASSERT_TRUE(control.SetChannel(4));
  ASSERT_TRUE(control.LoadChannel(mTone));
  EXPECT_FALSE(control.LoadChannel(mDir.Path() + "\\missing.wav"));
  EXPECT_TRUE(control.PlayChannel(false));  // the tone stayed loaded
  EXPECT_TRUE(control.ResetMixer());
  EXPECT_FALSE(control.PlayChannel(false));                // the reset freed it
  EXPECT_TRUE(control.OpenMixer(0, 44100, false, false));  // already open
  EXPECT_TRUE(control.CloseMixer());
  EXPECT_FALSE(control.IsOpen());
  EXPECT_TRUE(control.CloseMixer());
  EXPECT_TRUE(control.ResetMixer());
  // And it opens again after a close.
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  ASSERT_TRUE(control.SetChannel(4));
  EXPECT_TRUE(control.LoadChannel(mTone));
  EXPECT_TRUE(control.PlayChannel(false));
}

TEST_F(SdlAudioTest, LoadingIntoABusyChannelReplacesItsSound) {
  SdlAudioControl control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  mDir.Write("long.wav", ToneWav(1.5));
  ASSERT_TRUE(control.SetChannel(1));
  ASSERT_TRUE(control.LoadChannel(mDir.Path() + "\\long.wav"));
  ASSERT_TRUE(control.PlayChannel(false));
  EXPECT_TRUE(control.LoadChannel(mTone));  // frees the playing sound safely
  EXPECT_TRUE(control.PlayChannel(false));
}

TEST_F(SdlAudioTest, DeviceCountFollowsTheDriver) {
  EXPECT_EQ(StartSdlAudio().devices->waveOutGetNumDevs(), 1u);
  setenv("SDL_AUDIODRIVER", "no-such-driver", 1);
  EXPECT_EQ(StartSdlAudio().devices->waveOutGetNumDevs(), 0u);
  SdlAudioControl control;
  control.OpenMixer(0, 44100, false, false);
  EXPECT_FALSE(control.IsOpen());
  EXPECT_FALSE(control.LoadChannel(mTone));
  EXPECT_TRUE(control.ResetMixer());
  EXPECT_TRUE(control.CloseMixer());
}

TEST(PanVolumes, SidesFadeLinearlyAndTheMiddleIsFull) {
  uint8_t left = 0, right = 0;
  PanVolumes(0, &left, &right);
  EXPECT_EQ(left, 255);
  EXPECT_EQ(right, 255);
  PanVolumes(-90, &left, &right);
  EXPECT_EQ(left, 255);
  EXPECT_EQ(right, 0);
  PanVolumes(90, &left, &right);
  EXPECT_EQ(left, 0);
  EXPECT_EQ(right, 255);
  PanVolumes(45, &left, &right);
  EXPECT_EQ(left, 127);
  EXPECT_EQ(right, 255);
  PanVolumes(-1000, &left, &right);
  EXPECT_EQ(right, 0);
}

// The whole road of a laugh: settings, selection, audio form, mixer.
TEST_F(SdlAudioTest, LaughFromTheMediaDirectoryReachesTheOutput) {
  mDir.Write("app/Media/misc_laugh1.wav", ToneWav(0.3));
  mDir.Write("app/UserInfo/Tallowick.cfg", "[TW]\r\nEnableFX=True\r\nEnableMusic=False\r\n");
  gAppPath = mDir.Path() + "\\app";
  {
    const SdlAudio audio = StartSdlAudio();
    FDMC form(*audio.control, *audio.devices);
    gFDMC = &form;
    form.Setup();
    ASSERT_TRUE(form.EnableFX());
    PlaySoundFX("misc_laugh");
    EXPECT_EQ(form.FXChannel(), 1);
    WaitForQuiet();
    form.Shutdown();
    form.Form_Unload();
    gFDMC = nullptr;
  }
  EXPECT_GT(Written().peak, 5000);
}

}  // namespace
}  // namespace jeerbox

namespace jeerbox {
namespace {

// Media files a user can break: not audio, empty, or named mp3 while
// holding a WAV. A bad file loads nothing; the next good one still plays.
TEST_F(SdlAudioTest, BadMediaFilesLoadNothingAndDontStopTheNextSound) {
  SdlAudioControl control;
  ASSERT_TRUE(control.OpenMixer(0, 44100, false, false));
  mDir.Write("text.wav", "this is not a sound at all\n");
  mDir.Write("empty.mp3", "");
  mDir.Write("noise.mp3", std::string(3000, '\x55'));
  mDir.Write("wave.mp3", ToneWav(0.3));
  ASSERT_TRUE(control.SetChannel(2));
  EXPECT_FALSE(control.LoadChannel(mDir.Path() + "\\text.wav"));
  EXPECT_FALSE(control.LoadChannel(mDir.Path() + "\\empty.mp3"));
  EXPECT_FALSE(control.LoadChannel(mDir.Path() + "\\noise.mp3"));
  EXPECT_FALSE(control.PlayChannel(false));  // nothing loaded
  // Decoding goes by content, not by name.
  EXPECT_TRUE(control.LoadChannel(mDir.Path() + "\\wave.mp3"));
  EXPECT_TRUE(control.PlayChannel(false));
  WaitForQuiet();
  EXPECT_GT(Written().peak, 3000);
}

}  // namespace
}  // namespace jeerbox
