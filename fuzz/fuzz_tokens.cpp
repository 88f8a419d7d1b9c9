// Arbitrary template lines through the token and brace passes, with a
// General family whose lines fetch each other and themselves.
#include <cstdlib>

#include "fuzz_support.h"
#include "text/CTextGenerator.h"
#include "text/CTextUtils.h"
#include "text/MSimpleCrypto.h"
#include "text/shorthand.h"

using namespace jeerbox;

namespace {

std::string Head(const std::string& key) { return "\r\n[" + SimpleCrypt(key) + "]\r\n"; }

void WriteGeneralFamily(MemoryFileSystem& files, const std::string& extra) {
  std::string file = ";recursive on purpose\r\n";
  file += Head("General-Insult") + SimpleCrypt("<Insult> {a/b}") + "\r\n" + SimpleCrypt("<Curse>") + "\r\n";
  file += Head("General-Curse") + SimpleCrypt("{<Insult>/<Exclaim>}") + "\r\n";
  file += Head("General-Exclaim") + SimpleCrypt("gadzooks") + "\r\n" + SimpleCrypt(extra) + "\r\n";
  files.Write(CTextGenerator::BuildTextFileName("General-X", 1), file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  MemoryFileSystem& files = fuzz::Files();
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
