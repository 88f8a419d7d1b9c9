#include "fuzz_support.h"

#include <cstdio>
#include <cstdlib>

#include "support/globals.h"
#include "support/random.h"

namespace jeerbox::fuzz {

MemoryFileSystem& Files() {
  static MemoryFileSystem files;
  static bool installed = [] {
    SetFileSystem(&files);
    gAppPath = "C:\\app";
    return true;
  }();
  (void)installed;
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

std::chrono::milliseconds SlowLimit() {
  static const std::chrono::milliseconds limit = [] {
    const char* text = std::getenv("JEERBOX_FUZZ_SLOW_MS");
    return std::chrono::milliseconds(text ? std::atoll(text) : 250);
  }();
  return limit;
}

}  // namespace

SlowInputLimit::SlowInputLimit() : mStart(std::chrono::steady_clock::now()) {}

SlowInputLimit::~SlowInputLimit() {
  const auto spent = std::chrono::steady_clock::now() - mStart;
  if (SlowLimit().count() <= 0 || spent <= SlowLimit()) return;
  std::fprintf(stderr, "slow input: %lld ms, the limit is %lld ms\n",
               static_cast<long long>(std::chrono::duration_cast<std::chrono::milliseconds>(spent).count()),
               static_cast<long long>(SlowLimit().count()));
  std::abort();
}

}  // namespace jeerbox::fuzz
