// The mixer control and the device count on SDL2_mixer, sharing one audio
// host. Only the program links this; the core and its tests know the
// interfaces alone.
#pragma once

#include <memory>

#include "platform/audio_control.h"
#include "platform/wave_devices.h"

namespace jeerbox {

struct SdlAudio {
  std::unique_ptr<IAudioControl> control;  // 32 channels and one music slot
  std::unique_ptr<IWaveDevices> devices;
};

// Starts counting the output devices at once, in a child process when
// called before the program has started a thread, else on a thread of its
// own, so make it early; nothing is opened until OpenMixer.
SdlAudio StartSdlAudio();

}  // namespace jeerbox
