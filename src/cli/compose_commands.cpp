// jeer say, pick and lines: the composer and the text store from a terminal.
// A sentence or line that can't be made is the fixed line, as in the
// window; the command goes on with the next.
#include <cstdio>
#include <string>

#include "cli/commands.h"
#include "cli/escape.h"
#include "compose/MJeerbox.h"
#include "platform/file_system.h"
#include "platform/process.h"
#include "support/failure.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"

namespace jeerbox {
namespace {

void PrintLine(const std::string& text, bool escape) {
  const std::string out = escape ? EscapeBytes(text) : text;
  std::fwrite(out.data(), 1, out.size(), stdout);
  std::fputc('\n', stdout);
}

// Without System/ every text is the fixed line, as in the window; the
// terminal also says where it looked, so the reason isn't a guess.
void Prepare(const ComposeOptions& options) {
  gAppPath = ResolveRoot(options.root);
  gAllowMarkedText = true;
  if (options.seeded) SeedRandom(options.seed);
  if (!FileExists(gAppPath + "\\System"))
    std::fprintf(stderr, "jeer: no System/ in %s, so there are no word lists to read (see --root)\n",
                 NativePath(gAppPath).c_str());
}

}  // namespace

std::string ResolveRoot(const std::string& root) {
  std::string dir = root.empty() ? ExecutableDirectory() : root;
  while (dir.size() > 1 && dir.back() == '/') dir.pop_back();
  return dir;
}

int RunSay(const ComposeOptions& options) {
  Prepare(options);
  for (uint64_t i = 0; i < options.count; ++i)
    PrintLine(ResultOr<std::string>(kMissingFilesText, GenerateInsult), options.escape);
  return 0;
}

int RunPick(const ComposeOptions& options) {
  Prepare(options);
  for (uint64_t i = 0; i < options.count; ++i) {
    PrintLine(ResultOr<std::string>(kMissingFilesText,
                                    [&] {
                                      CTextGenerator generator;
                                      generator.Setup(nullptr);
                                      return generator.GetText(options.key);
                                    }),
              options.escape);
  }
  return 0;
}

int RunLines(const ComposeOptions& options) {
  Prepare(options);
  IgnoringFailure([&] {
    CTextGenerator generator;
    for (std::string_view line : generator.GetCacheItem(options.key)) PrintLine(SimpleCrypt(line), true);
  });
  return 0;
}

}  // namespace jeerbox
