// The mixer control the audio form drives: effects on numbered channels and
// one music slot. Every call is safe in every state; a call that fails
// reports false and changes nothing, and callers are free to ignore it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace jeerbox {

class IAudioControl {
 public:
  virtual ~IAudioControl() = default;

  virtual bool OpenMixer(int32_t windowHandle, int32_t sampleRate, bool flag1, bool flag2) = 0;
  virtual bool ResetMixer() = 0;
  virtual bool CloseMusic() = 0;
  virtual bool CloseMixer() = 0;

  virtual bool LoadMusic(const std::string& fileName) = 0;
  virtual bool PlayMusic(bool looping) = 0;
  virtual bool StopMusic() = 0;
  virtual bool PauseMusic() = 0;
  virtual bool ResumeMusic() = 0;
  // Empty when the property can't be read.
  virtual std::optional<bool> MusicCanPause() = 0;
  virtual std::optional<bool> MusicCanResume() = 0;

  // Selects the channel the channel calls below act on, until the next call.
  virtual bool SetChannel(int32_t channel) = 0;
  // -90 (left) to 90 (right); applies to the file loaded next.
  virtual bool SetChannelPan(int32_t pan) = 0;
  virtual bool LoadChannel(const std::string& fileName) = 0;
  virtual bool PlayChannel(bool flag) = 0;
  virtual bool ClearChannel() = 0;
  virtual bool StopChannel() = 0;
};

}  // namespace jeerbox
