// The process-wide random source behind NextRandom and Reseed: PCG32 on
// every host, so a seeded run prints the same wherever it runs.
#pragma once

#include <cstdint>

#include "platform/random.h"

namespace jeerbox {

// PCG32 (XSH RR). Seeded, the "clock" it mixes in is a fixed value, so a run
// is reproducible; unseeded it reads the steady clock.
class Pcg32Random : public IRandomSource {
 public:
  Pcg32Random();  // seeded from the clock
  explicit Pcg32Random(uint64_t seed);

  float Next() override;
  void Reseed() override;
  uint32_t NextU32();

 private:
  void Mix(uint64_t value);

  uint64_t mState = 0;
  uint64_t mInc = 0;
  bool mFixedClock = false;
  uint64_t mFixedTicks = 0;
};

float NextRandom();
void Reseed();

// Makes the default source reproducible from here on.
void SeedRandom(uint64_t seed);

// Puts `source` in place of the current one (nullptr restores the default)
// and returns the previous one. The caller keeps ownership.
IRandomSource* SetRandomSource(IRandomSource* source);

// floor(NextRandom() * n) in single precision, kept below n: near 1 the
// product can round up to n itself. Draws once even when n is 1.
int RandomIndex(int n);

// floor(NextRandom() * n + 1): a whole number from 1 to n.
int RandomNumber(int n);

}  // namespace jeerbox
