// The SDL2_mixer control for real, on SDL's disk driver: what the mixer
// plays lands in a raw file of 16-bit stereo samples, in real time (an open
// mixer writes on), read back here.
#include "platform/sdl/audio_control_sdl.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <thread>

#include "helpers/temp_dir.h"
#include "platform/audio_control_contract.h"
#include "platform/sdl/audio_sdl.h"

namespace jeerbox {
namespace {

// A mono 16-bit WAV of a sine tone at 22050 Hz: the mixer has to convert it.
std::string ToneWav(double seconds) {
  const uint32_t rate = 22050, samples = static_cast<uint32_t>(seconds * rate);
  auto u32 = [](uint32_t v) { return std::string{char(v), char(v >> 8), char(v >> 16), char(v >> 24)}; };
  auto u16 = [](uint16_t v) { return std::string{char(v), char(v >> 8)}; };
  std::string data;
  for (uint32_t i = 0; i < samples; ++i)
    data +=
        u16(static_cast<uint16_t>(static_cast<int16_t>(12000.0 * std::sin(2.0 * M_PI * 440.0 * i / rate))));
  return "RIFF" + u32(36 + static_cast<uint32_t>(data.size())) + "WAVEfmt " + u32(16) + u16(1) + u16(1) +
         u32(rate) + u32(rate * 2) + u16(2) + u16(16) + "data" + u32(static_cast<uint32_t>(data.size())) +
         data;
}

struct Energy {
  double left = 0, right = 0;  // sums of squares; nothing heard makes their ratio NaN
};

class SdlAudioTest : public ::testing::Test {
 protected:
  void SetUp() override {
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", Raw().c_str(), 1);
    mDir.Write("tone.wav", ToneWav(0.3));
    mControl.emplace();  // after the driver is chosen: its host counts devices at once
    ASSERT_TRUE(mControl->OpenMixer(0, 44100, false, false));
  }
  std::string Raw() const { return mDir.Path() + "/out.raw"; }

  bool Load(int channel, int pan, const std::string& name = "tone.wav") {
    return mControl->SetChannel(channel) && mControl->SetChannelPan(pan) &&
           mControl->LoadChannel(mDir.Path() + "\\" + name);
  }
  bool Play(int channel) { return mControl->SetChannel(channel) && mControl->PlayChannel(false); }

  // Mix_Playing needs an open mixer: IsOpen waits for the opening.
  void WaitForQuiet() {
    if (!mControl->IsOpen()) return;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (Mix_Playing(-1) > 0 && std::chrono::steady_clock::now() < deadline)
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    std::this_thread::sleep_for(std::chrono::milliseconds(150));  // let the last buffers reach the file
  }

  // What the driver wrote while `play` ran and the mixer played out.
  Energy Heard(const std::function<void()>& play) {
    WaitForQuiet();
    const auto from = static_cast<std::streamoff>(std::filesystem::file_size(Raw()));
    play();
    WaitForQuiet();
    std::ifstream in(Raw(), std::ios::binary);
    in.seekg(from);
    Energy energy;
    for (int16_t frame[2]; in.read(reinterpret_cast<char*>(frame), sizeof frame);) {
      energy.left += double(frame[0]) * frame[0];
      energy.right += double(frame[1]) * frame[1];
    }
    return energy;
  }

  testing::TempDir mDir;
  std::optional<SdlAudioControl> mControl;
};

// Channels 1 to 32 are the mixer's, others are refused and keep the last
// choice; a channel's pan is set again for each sound, the old one gone with
// the sound it was set for.
TEST_F(SdlAudioTest, EachChannelPlaysWhereItsPanPutsIt) {
  EXPECT_FALSE(mControl->StopChannel());  // nothing selected yet
  const struct {
    int channel, pan;
    double leftShare;  // of the energy
  } cases[] = {{5, -90, 1.0}, {32, 90, 0.0}, {5, 90, 0.0}, {32, 0, 0.5}, {1, 0, 0.5}};
  for (const auto& c : cases) {
    SCOPED_TRACE("channel " + std::to_string(c.channel) + " pan " + std::to_string(c.pan));
    mControl->StopChannel();
    mControl->ClearChannel();
    const Energy energy = Heard([&] {
      ASSERT_TRUE(Load(c.channel, c.pan));
      EXPECT_FALSE(mControl->SetChannel(c.channel + 32));
      EXPECT_FALSE(mControl->SetChannel(c.channel - 32));
      ASSERT_TRUE(mControl->PlayChannel(false));
    });
    EXPECT_NEAR(energy.left / (energy.left + energy.right), c.leftShare, 0.005);
  }
}

// One tone hard left, the other hard right: a second effect doesn't stop the first.
TEST_F(SdlAudioTest, EffectsOnTwoChannelsSoundTogether) {
  const Energy energy = Heard([&] {
    ASSERT_TRUE(Load(1, -90));
    ASSERT_TRUE(Load(2, 90));
    ASSERT_TRUE(Play(1));
    ASSERT_TRUE(Play(2));
  });
  EXPECT_NEAR(energy.left / energy.right, 1.0, 0.1);
}

TEST_F(SdlAudioTest, KeepsTheContractInEveryState) {
  mControl.emplace();  // never opened
  testing::CheckAudioControlContract(*mControl, mDir.Path() + "\\tone.wav");
}

// A new sound replaces a channel's even while it plays.
TEST_F(SdlAudioTest, ALoadReplacesASoundThatPlays) {
  mDir.Write("long.wav", ToneWav(1.5));
  ASSERT_TRUE(Load(4, 0, "long.wav"));
  ASSERT_TRUE(Play(4));
  EXPECT_TRUE(mControl->LoadChannel(mDir.Path() + "\\tone.wav"));  // frees the playing sound safely
  EXPECT_TRUE(mControl->PlayChannel(false));
}

TEST(SdlAudio, DeviceCountFollowsTheDriver) {
  setenv("SDL_AUDIODRIVER", "disk", 1);
  EXPECT_EQ(StartSdlAudio().devices->waveOutGetNumDevs(), 1u);
  setenv("SDL_AUDIODRIVER", "no-such-driver", 1);
  EXPECT_EQ(StartSdlAudio().devices->waveOutGetNumDevs(), 0u);
  SdlAudioControl control;
  control.OpenMixer(0, 44100, false, false);
  EXPECT_FALSE(control.IsOpen());
}

}  // namespace
}  // namespace jeerbox
