#include "helpers/scripted_random.h"

namespace jeerbox::testing {

ScriptedRandom::ScriptedRandom(std::vector<float> values)
    : mValues(std::move(values)), mPrevious(SetRandomSource(this)) {}

ScriptedRandom::~ScriptedRandom() { SetRandomSource(mPrevious); }

float ScriptedRandom::Next() {
  ++mDraws;
  if (mValues.empty()) return 0.0f;
  if (mNext < mValues.size()) return mValues[mNext++];
  return mValues.back();
}

}  // namespace jeerbox::testing
