// How many wave output devices the machine has: no device, no sound.
#pragma once

namespace jeerbox {

class IWaveDevices {
 public:
  virtual ~IWaveDevices() = default;
  virtual unsigned waveOutGetNumDevs() = 0;
};

}  // namespace jeerbox
