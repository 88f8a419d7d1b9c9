// A mixer control that plays nothing: for machines and runs without sound.
// Every call succeeds and has no effect.
#pragma once

#include "platform/audio_control.h"

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

}  // namespace jeerbox
