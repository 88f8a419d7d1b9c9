// Failures end where they happen: a step that throws gives way to the
// neutral result of its place, and the program goes on with the next step.
#pragma once

#include <utility>

namespace jeerbox {

// Runs `step`; whatever it throws ends here.
template <typename Step>
void IgnoringFailure(Step&& step) noexcept {
  try {
    std::forward<Step>(step)();
  } catch (...) {
  }
}

// What `step` returns, or `neutral` when it throws.
template <typename Result, typename Step>
Result ResultOr(Result neutral, Step&& step) {
  try {
    return std::forward<Step>(step)();
  } catch (...) {
    return neutral;
  }
}

}  // namespace jeerbox
