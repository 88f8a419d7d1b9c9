// The mixer control and the device count on SDL2_mixer. Only the program
// links this; the core and its tests know the interfaces alone.
#pragma once

#include <memory>

#include "platform/audio_control.h"
#include "platform/wave_devices.h"

namespace jeerbox {

// 32 channels and one music slot. Nothing is opened until OpenMixer.
std::unique_ptr<IAudioControl> CreateSdlAudioControl();
// Counts the audio output devices SDL sees; 0 where audio can't start.
std::unique_ptr<IWaveDevices> CreateSdlWaveDevices();

}  // namespace jeerbox
