// A mixer control that plays nothing and a fixed device count: for runs
// without sound (benchmarks, tests of what lies around the audio form).
#pragma once

#include "platform/audio_control.h"
#include "platform/wave_devices.h"

namespace jeerbox {

class SilentAudioControl : public IAudioControl {
 public:
  bool OpenMixer(int32_t, int32_t, bool, bool) override { return true; }
  bool ResetMixer() override { return true; }
  bool CloseMusic() override { return true; }
  bool CloseMixer() override { return true; }
  bool LoadMusic(const std::string&) override { return true; }
  bool PlayMusic(bool) override { return true; }
  bool StopMusic() override { return true; }
  bool PauseMusic() override { return true; }
  bool ResumeMusic() override { return true; }
  std::optional<bool> MusicCanPause() override { return false; }
  std::optional<bool> MusicCanResume() override { return false; }
  bool SetChannel(int32_t) override { return true; }
  bool SetChannelPan(int32_t) override { return true; }
  bool LoadChannel(const std::string&) override { return true; }
  bool PlayChannel(bool) override { return true; }
  bool ClearChannel() override { return true; }
  bool StopChannel() override { return true; }
};

class FixedWaveDevices : public IWaveDevices {
 public:
  explicit FixedWaveDevices(unsigned count) : mCount(count) {}
  unsigned waveOutGetNumDevs() override { return mCount; }

 private:
  unsigned mCount;
};

}  // namespace jeerbox
