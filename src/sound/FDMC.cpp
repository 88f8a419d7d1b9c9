// The audio form's orders of calls. Results of the control are ignored on
// purpose: a failed call never stops the next one.
#include "sound/FDMC.h"

#include "support/CSettings.h"
#include "support/MSimpleIO.h"
#include "support/globals.h"

namespace jeerbox {

FDMC* gFDMC = nullptr;

bool HasWaveDevice(IWaveDevices& devices) { return devices.waveOutGetNumDevs() > 0; }

// The control is handed only a file it can take whole: one that exists and
// reads as a regular file within the media limit. A pipe, a device or a
// file of gigabytes is as silent as a missing one.
bool IsPlayableFile(const std::string& fileName) {
  if (!FileExists(fileName)) return false;
  try {
    std::string bytes;
    return CurrentFileSystem().ReadFile(fileName, &bytes, kMaxMediaBytes) == FileStatus::kOk;
  } catch (...) {
    return false;
  }
}

FDMC::FDMC(IAudioControl& control, IWaveDevices& devices) : mControl(control), mDevices(devices) {}

void FDMC::Setup() {
  {
    const CSettings settings;
    mEnableFX = SettingToBoolean(settings.ReadSetting("EnableFX", true), true);
    mEnableMusic = SettingToBoolean(settings.ReadSetting("EnableMusic", true), true);
  }
  mFXChannel = 0;
  if (!HasWaveDevice(mDevices)) mEnableFX = mEnableMusic = false;
  mControl.ResetMixer();
  if (mEnableFX || mEnableMusic) mControl.OpenMixer(mWindowHandle, kSampleRate, false, false);
}

void FDMC::Shutdown() {
  if (!mEnableFX && !mEnableMusic) return;
  mControl.ResetMixer();
  StopChannels();
  mControl.CloseMusic();
  mControl.CloseMixer();
}

void FDMC::StopAllFX() {
  if (mEnableFX) StopChannels();
}

void FDMC::StopChannels() {
  for (int32_t channel = 1; channel <= kSweepChannels; ++channel) {
    mControl.SetChannel(channel);
    mControl.StopChannel();
  }
}

// A property that can't be read lets the call behind it run.
void FDMC::PauseGameSoundBG() {
  if (mEnableMusic && mControl.MusicCanPause().value_or(true)) mControl.PauseMusic();
}

void FDMC::ResumeGameSoundBG() {
  if (mEnableMusic && mControl.MusicCanResume().value_or(true)) mControl.ResumeMusic();
}

void FDMC::StopGameSoundBG() {
  if (!mEnableMusic) return;
  mControl.StopMusic();
  mControl.CloseMusic();
}

void FDMC::PlayGameSoundBG(const std::string& fileName, bool looping) {
  if (!mEnableMusic || !IsPlayableFile(fileName)) return;
  StopGameSoundBG();
  mControl.LoadMusic(fileName);
  mControl.PlayMusic(looping);
}

// An effect cuts off whatever still played on its channel, eight effects ago.
void FDMC::PlayGameSoundFX(const std::string& fileName) {
  if (!mEnableFX || !IsPlayableFile(fileName)) return;
  if (++mFXChannel > kFXChannels) mFXChannel = 1;
  mControl.SetChannel(mFXChannel);
  mControl.StopChannel();
  mControl.ClearChannel();
  mControl.SetChannelPan(RandomPan());
  mControl.LoadChannel(fileName);
  mControl.PlayChannel(false);
}

void FDMC::Form_Unload() { mControl.ResetMixer(); }

int16_t FDMC::RandomPan() {
  if (Chance(0.5f)) return 0;
  return Chance(0.5f) ? -90 : 90;
}

}  // namespace jeerbox
