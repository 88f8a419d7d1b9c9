// jeer say, pick and lines: the composer and the text store from a terminal.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/escape.h"
#include "compose/MJeerbox.h"
#include "platform/file_system.h"
#include "platform/process.h"
#include "support/MSimpleIO.h"
#include "support/failure.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"

namespace jeerbox {
namespace {

struct ComposeOptions {
  std::string key;
  std::string root;
  uint64_t count = 1;
  uint64_t seed = 0;
  bool seeded = false;
  bool escape = false;
};

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

void AddRootOption(CLI::App* command, ComposeOptions* options) {
  command->add_option("--root", options->root,
                      "Program directory holding System/ (default: where jeer lies)");
}

// CLI11 would take "-1" for an unsigned number and wrap it around, and
// saturate a number too large for 64 bits.
bool FitsUnsigned64(const std::string& value) {
  if (value.empty() || value.find_first_not_of("0123456789") != std::string::npos) return false;
  errno = 0;
  std::strtoull(value.c_str(), nullptr, 10);
  return errno != ERANGE;
}

const CLI::Validator kWholeNumber(
    [](std::string& value) {
      return FitsUnsigned64(value) ? std::string() : "'" + value + "' is not a whole number from 0 to 2^64-1";
    },
    "N", "whole number");

void AddDrawOptions(CLI::App* command, ComposeOptions* options) {
  AddRootOption(command, options);
  command->add_option("-n,--count", options->count, "How many to print (default 1)")->check(kWholeNumber);
  command
      ->add_option("--seed", options->seed,
                   "Unsigned 64-bit seed: the same seed, data and build print the same")
      ->check(kWholeNumber)
      ->each([options](const std::string&) { options->seeded = true; });
  command->add_flag("--escape", options->escape,
                    "Show control and non-ASCII bytes as escapes (\\r, \\x92, ...)");
}

}  // namespace

std::string ResolveRoot(const std::string& root) {
  std::string dir = root.empty() ? ExecutableDirectory() : root;
  while (dir.size() > 1 && dir.back() == '/') dir.pop_back();
  return dir;
}

void AddComposeCommands(CLI::App& app, int* exitCode) {
  auto options = std::make_shared<ComposeOptions>();

  CLI::App* say = app.add_subcommand("say", "Compose sentences, as \"Insult me\" does");
  AddDrawOptions(say, options.get());
  // A sentence or line that can't be made is the fixed line, as in the
  // window; the command goes on with the next.
  say->callback([options, exitCode] {
    Prepare(*options);
    for (uint64_t i = 0; i < options->count; ++i)
      PrintLine(ResultOr<std::string>(kMissingFilesText, GenerateInsult), options->escape);
    *exitCode = 0;
  });

  CLI::App* pick = app.add_subcommand("pick", "Pick random lines of one key, expanded");
  pick->add_option("KEY", options->key, "Text key, such as Misc-Jeerbox-Noun")->required();
  AddDrawOptions(pick, options.get());
  pick->callback([options, exitCode] {
    Prepare(*options);
    for (uint64_t i = 0; i < options->count; ++i) {
      PrintLine(ResultOr<std::string>(kMissingFilesText,
                                      [&] {
                                        CTextGenerator generator;
                                        generator.Setup(nullptr);
                                        return generator.GetText(options->key);
                                      }),
                options->escape);
    }
    *exitCode = 0;
  });

  CLI::App* lines =
      app.add_subcommand("lines", "List a key's lines as read from the files, unscrambled and escaped");
  lines->add_option("KEY", options->key, "Text key, such as General-Insult")->required();
  AddRootOption(lines, options.get());
  lines->callback([options, exitCode] {
    Prepare(*options);
    IgnoringFailure([&] {
      CTextGenerator generator;
      for (std::string_view line : generator.GetCacheItem(options->key)) PrintLine(SimpleCrypt(line), true);
    });
    *exitCode = 0;
  });
}

}  // namespace jeerbox
