// The mixer control and the device count on Windows. Only the program
// links this; the core and its tests know the interfaces alone.
#pragma once

#include <memory>

#include "platform/audio_control.h"
#include "platform/wave_devices.h"

namespace jeerbox {

// 32 channels and one music slot on XAudio2. Nothing is opened until
// OpenMixer.
std::unique_ptr<IAudioControl> CreateXAudio2Control();
// waveOutGetNumDevs of winmm.dll.
std::unique_ptr<IWaveDevices> CreateWinmmWaveDevices();

}  // namespace jeerbox
