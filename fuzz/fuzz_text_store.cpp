// Arbitrary bytes as the files of the Misc family: reading sections,
// counting and picking lines, and whole sentences must never fail.
#include <cstdlib>

#include "compose/MJeerbox.h"
#include "fuzz_support.h"
#include "text/CTextGenerator.h"
#include "text/shorthand.h"

using namespace jeerbox;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  testing::FakeFileSystem& files = fuzz::Files();
  const fuzz::SlowInputLimit limit;
  const std::vector<std::string> parts = fuzz::SplitInput(data, size, 3);
  for (size_t n = 0; n < 3; ++n) {
    const std::string path = CTextGenerator::BuildTextFileName("Misc-X", static_cast<int>(n + 1));
    if (n < parts.size())
      files.Write(path, parts[n]);
    else
      files.Remove(path);
  }
  CTextGenerator generator;
  for (const char* key : {"Misc-Jeerbox-Noun", "Misc-Jeerbox-Adjective", "Misc-Jeerbox-HowBig"}) {
    const LineList& lines = generator.GetCacheItem(key);
    for (size_t i = 0; i < lines.size() && i < 64; ++i) (void)lines[i];
    if (generator.GetText(key).size() > kMaxTextLength) std::abort();
  }
  (void)GenerateInsult();
  return 0;
}
