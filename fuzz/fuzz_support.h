// What every fuzz target shares: an in-memory program directory and a
// reproducible random source, set up once per process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "helpers/fake_file_system.h"
#include "support/globals.h"
#include "support/random.h"

namespace jeerbox::fuzz {

// The in-memory file system every target works on, already in place, with
// gAppPath at "C:\app" and the random source seeded.
inline testing::FakeFileSystem& Files() {
  static testing::FakeFileSystem files;  // in place from its first use on
  gAppPath = "C:\\app";
  files.ClearLog();  // a log over a whole run would grow without end
  SeedRandom(1);
  return files;
}

// Splits the input at "\n=====\n" lines into up to `parts` pieces.
inline std::vector<std::string> SplitInput(const uint8_t* data, size_t size, size_t parts) {
  const std::string input(reinterpret_cast<const char*>(data), size), separator = "\n=====\n";
  std::vector<std::string> out;
  size_t start = 0;
  for (size_t cut; out.size() + 1 < parts && (cut = input.find(separator, start)) != std::string::npos;) {
    out.push_back(input.substr(start, cut - start));
    start = cut + separator.size();
  }
  out.push_back(input.substr(start));
  return out;
}

// Fails the input (abort, so libFuzzer keeps it) when the work in its scope
// takes more than JEERBOX_FUZZ_SLOW_MS milliseconds of this thread's CPU
// (default 250), whatever else runs meanwhile: the bound of one sentence,
// 50 ms in a release build, with room for the sanitizers.
class SlowInputLimit {
 public:
  SlowInputLimit() : mStartMs(ThreadMs()) {}
  ~SlowInputLimit() {
    static const long long limit =
        std::getenv("JEERBOX_FUZZ_SLOW_MS") ? std::atoll(std::getenv("JEERBOX_FUZZ_SLOW_MS")) : 250;
    const double spent = ThreadMs() - mStartMs;
    if (limit <= 0 || spent <= static_cast<double>(limit)) return;
    std::fprintf(stderr, "slow input: %.0f ms of CPU, the limit is %lld ms\n", spent, limit);
    std::abort();
  }
  SlowInputLimit(const SlowInputLimit&) = delete;
  SlowInputLimit& operator=(const SlowInputLimit&) = delete;

 private:
  static double ThreadMs() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
  }
  double mStartMs;
};

}  // namespace jeerbox::fuzz
