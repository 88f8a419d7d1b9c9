#include "fuzz_support.h"

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

}  // namespace jeerbox::fuzz
