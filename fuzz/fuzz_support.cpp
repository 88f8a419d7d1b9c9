#include "fuzz_support.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "support/globals.h"
#include "support/random.h"

namespace jeerbox::fuzz {

testing::FakeFileSystem& Files() {
  static testing::FakeFileSystem files;  // in place from its first use on
  gAppPath = "C:\\app";
  files.ClearLog();  // a log over a whole run would grow without end
  SeedRandom(1);
  return files;
}

std::vector<std::string> SplitInput(const uint8_t* data, size_t size, size_t parts) {
  static const std::string kSeparator = "\n=====\n";
  const std::string input(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> out;
  size_t start = 0;
  while (out.size() + 1 < parts) {
    const size_t cut = input.find(kSeparator, start);
    if (cut == std::string::npos) break;
    out.push_back(input.substr(start, cut - start));
    start = cut + kSeparator.size();
  }
  out.push_back(input.substr(start));
  return out;
}

namespace {

long long SlowLimitMs() {
  static const long long limit = [] {
    const char* text = std::getenv("JEERBOX_FUZZ_SLOW_MS");
    return text ? std::atoll(text) : 250;
  }();
  return limit;
}

// The CPU time of this thread: what the input costs, whatever else runs on
// the machine meanwhile.
double ThreadMs() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

}  // namespace

SlowInputLimit::SlowInputLimit() : mStartMs(ThreadMs()) {}

SlowInputLimit::~SlowInputLimit() {
  const double spent = ThreadMs() - mStartMs;
  if (SlowLimitMs() <= 0 || spent <= static_cast<double>(SlowLimitMs())) return;
  std::fprintf(stderr, "slow input: %.0f ms of CPU, the limit is %lld ms\n", spent, SlowLimitMs());
  std::abort();
}

}  // namespace jeerbox::fuzz
