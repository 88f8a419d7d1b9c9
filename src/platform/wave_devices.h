// How many wave output devices the machine has: no device, no sound.
#pragma once

namespace jeerbox {

class IWaveDevices {
 public:
  virtual ~IWaveDevices() = default;
  virtual int Count() = 0;
};

// A fixed answer: for tests, and for builds without an audio library.
class FixedWaveDevices : public IWaveDevices {
 public:
  explicit FixedWaveDevices(int count) : mCount(count) {}
  int Count() override { return mCount; }

 private:
  int mCount;
};

}  // namespace jeerbox
