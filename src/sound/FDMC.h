// The audio form: effects on eight rotating channels with a random stereo
// position, one music slot, and the two switches of the settings file.
// Audio is decoration: every failure of the mixer control is ignored.
#pragma once

#include <cstdint>
#include <string>

#include "platform/audio_control.h"
#include "platform/wave_devices.h"

namespace jeerbox {

class FDMC {
 public:
  // Effects rotate over channels 1 to 8; the stop sweeps reach 1 to 32.
  static constexpr int kFXChannels = 8;
  static constexpr int kSweepChannels = 32;
  static constexpr int32_t kSampleRate = 44100;

  FDMC(IAudioControl& control, IWaveDevices& devices);

  void Setup();
  void Shutdown();
  void StopAllFX();
  void PauseGameSoundBG();
  void ResumeGameSoundBG();
  void StopGameSoundBG();
  void PlayGameSoundBG(const std::string& fileName, bool looping);
  void PlayGameSoundFX(const std::string& fileName);
  void Form_Unload();

  bool EnableFX() const { return mEnableFX; }
  bool EnableMusic() const { return mEnableMusic; }
  int FXChannel() const { return mFXChannel; }
  // The handle handed to the mixer; this form has no window of its own.
  void SetWindowHandle(int32_t handle) { mWindowHandle = handle; }

 private:
  // 0 for half of all effects, -90 or 90 for a quarter each.
  int16_t RandomPan();
  void StopChannels();

  IAudioControl& mControl;
  IWaveDevices& mDevices;
  bool mEnableFX = false;
  bool mEnableMusic = false;
  int16_t mFXChannel = 0;
  int32_t mWindowHandle = 0;
};

// True when the machine has a wave output device.
bool HasWaveDevice(IWaveDevices& devices);

// True when the file exists and can be read whole as a media file.
bool IsPlayableFile(const std::string& fileName);

// The one audio form of the process; null until the program sets it up.
extern FDMC* gFDMC;

}  // namespace jeerbox
