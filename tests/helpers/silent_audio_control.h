// A mixer control that plays nothing and says music can't pause, and a
// fixed device count: for runs without sound (benchmarks, tests of what
// lies around the audio form).
#pragma once

#include "helpers/recording_audio_control.h"
#include "platform/wave_devices.h"

namespace jeerbox {

class SilentAudioControl : public testing::RecordingAudioControl {
 public:
  SilentAudioControl() {
    SetMusicCanPause(false);
    SetMusicCanResume(false);
  }
};

class FixedWaveDevices : public IWaveDevices {
 public:
  explicit FixedWaveDevices(unsigned count) : mCount(count) {}
  unsigned waveOutGetNumDevs() override { return mCount; }

 private:
  unsigned mCount;
};

}  // namespace jeerbox
