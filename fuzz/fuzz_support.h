// What every fuzz target shares: an in-memory program directory and a
// reproducible random source, set up once per process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "helpers/fake_file_system.h"

namespace jeerbox::fuzz {

// The in-memory file system every target works on, already in place, with
// gAppPath at "C:\app" and the random source seeded.
testing::FakeFileSystem& Files();

// Splits the input at a separator line into up to `parts` pieces.
std::vector<std::string> SplitInput(const uint8_t* data, size_t size, size_t parts);

// Fails the input (abort, so libFuzzer keeps it) when the work in its scope
// takes more than JEERBOX_FUZZ_SLOW_MS milliseconds of CPU (default 250):
// the bound of one sentence, 50 ms in a release build, with room for the
// sanitizers.
class SlowInputLimit {
 public:
  SlowInputLimit();
  ~SlowInputLimit();
  SlowInputLimit(const SlowInputLimit&) = delete;
  SlowInputLimit& operator=(const SlowInputLimit&) = delete;

 private:
  double mStartMs;
};

}  // namespace jeerbox::fuzz
