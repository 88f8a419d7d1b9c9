// Arbitrary template lines through the token and brace passes, with a
// General family whose lines fetch each other and themselves.
#include <cstdlib>

#include "fuzz_support.h"
#include "helpers/scrambled_writer.h"
#include "text/CTextGenerator.h"
#include "text/CTextUtils.h"
#include "text/shorthand.h"

using namespace jeerbox;

namespace {

void WriteGeneralFamily(testing::FakeFileSystem& files, const std::string& extra) {
  testing::ScrambledWriter file;
  file.Comment("recursive on purpose").Section("General-Insult").Lines({"<Insult> {a/b}", "<Curse>"});
  file.Section("General-Curse")
      .Line("{<Insult>/<Exclaim>}")
      .Section("General-Exclaim")
      .Lines({"gadzooks", extra});
  files.Write(CTextGenerator::BuildTextFileName("General-X", 1), file.Bytes());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  testing::FakeFileSystem& files = fuzz::Files();
  const fuzz::SlowInputLimit limit;
  const std::vector<std::string> parts = fuzz::SplitInput(data, size, 3);
  WriteGeneralFamily(files, parts.size() > 1 ? parts[1] : std::string());
  const std::string city = parts.size() > 2 ? parts[2] : std::string();
  const ExpansionRequest pick;  // both passes within one budget, as in a pick
  std::string text = CTextUtils::ParseGameTokens(parts[0], city, "", "", "");
  text = CTextUtils::ParseInlineTokens(text);
  if (text.size() > kMaxTextLength) std::abort();
  return 0;
}
