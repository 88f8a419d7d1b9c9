// The random source and the clock it mixes in. The program's own source is
// PCG32 (support/random.h) on every host; tests put a scripted one in place.
#pragma once

namespace jeerbox {

class IRandomSource {
 public:
  virtual ~IRandomSource() = default;
  // Next uniform value in [0, 1), single precision.
  virtual float Next() = 0;
  // Mixes the clock into the running state. Never restarts the sequence.
  virtual void Reseed() = 0;
};

}  // namespace jeerbox
