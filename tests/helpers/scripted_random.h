// A random source that plays back values a test gives, and counts draws and
// reseeds. Past the end of the script it repeats the last value (or 0).
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "support/random.h"

namespace jeerbox::testing {

class ScriptedRandom : public IRandomSource {
 public:
  explicit ScriptedRandom(std::vector<float> values = {}) : mValues(std::move(values)) {}  // in place
  ~ScriptedRandom() override { SetRandomSource(mPrevious); }

  void Push(float value) { mValues.push_back(value); }
  float Next() override {
    ++mDraws;
    return mValues.empty() ? 0.0f : mValues[std::min(mNext++, mValues.size() - 1)];
  }
  void Reseed() override { ++mReseeds; }

  int Draws() const { return mDraws; }
  int Reseeds() const { return mReseeds; }

 private:
  std::vector<float> mValues;
  size_t mNext = 0;
  int mDraws = 0;
  int mReseeds = 0;
  IRandomSource* mPrevious = SetRandomSource(this);
};

// The value that makes floor(value * n) pick index i of n.
inline float PickIndex(int i, int n) { return (static_cast<float>(i) + 0.5f) / static_cast<float>(n); }

}  // namespace jeerbox::testing
