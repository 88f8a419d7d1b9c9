// PCG32 behind the process-wide NextRandom/Reseed pair.
#include "support/random.h"

#include <chrono>
#include <cmath>

namespace jeerbox {
namespace {

constexpr uint64_t kMultiplier = 6364136223846793005ULL;

uint64_t SplitMix64(uint64_t x) {
  x += 0x9E3779B97F4A7C15ULL;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ULL;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBULL;
  return x ^ (x >> 31);
}

uint64_t ClockTicks() {
  return static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

Pcg32Random& DefaultSource() {
  static Pcg32Random source;
  return source;
}

IRandomSource* gSource = nullptr;

IRandomSource& Current() { return gSource ? *gSource : DefaultSource(); }

}  // namespace

Pcg32Random::Pcg32Random() : Pcg32Random(SplitMix64(ClockTicks())) { mFixedClock = false; }

Pcg32Random::Pcg32Random(uint64_t seed)
    : mInc((SplitMix64(seed ^ 0xDA3E39CB94B95BDBULL) << 1) | 1), mFixedClock(true), mFixedTicks(seed) {
  Mix(seed);
}

uint32_t Pcg32Random::NextU32() {
  uint64_t old = mState;
  mState = old * kMultiplier + mInc;
  auto xorshifted = static_cast<uint32_t>(((old >> 18) ^ old) >> 27);
  auto rot = static_cast<uint32_t>(old >> 59);
  return (xorshifted >> rot) | (xorshifted << ((32 - rot) & 31));
}

float Pcg32Random::Next() {
  // 24 bits fill a float's mantissa exactly, so the value never reaches 1.
  return static_cast<float>(NextU32() >> 8) * 0x1p-24f;
}

// Adding (not xoring) the clock means two reseeds in one tick never cancel,
// and the step behind it means two picks in one tick still differ.
void Pcg32Random::Mix(uint64_t value) {
  mState += SplitMix64(value);
  NextU32();
}

void Pcg32Random::Reseed() { Mix(mFixedClock ? mFixedTicks : ClockTicks()); }

float NextRandom() { return Current().Next(); }

void Reseed() { Current().Reseed(); }

void SeedRandom(uint64_t seed) { DefaultSource() = Pcg32Random(seed); }

IRandomSource* SetRandomSource(IRandomSource* source) {
  IRandomSource* previous = gSource;
  gSource = source;
  return previous;
}

namespace {
int Clamp(int value, int low, int high) { return value < low ? low : (value > high ? high : value); }
}  // namespace

// Every call draws, even for n == 1: callers count on one draw per pick.
int RandomIndex(int n) {
  const float scaled = NextRandom() * static_cast<float>(n);
  return Clamp(static_cast<int>(std::floor(scaled)), 0, n - 1);
}

int RandomNumber(int n) {
  const float scaled = NextRandom() * static_cast<float>(n) + 1.0f;
  return Clamp(static_cast<int>(std::floor(scaled)), 1, n);
}

}  // namespace jeerbox
