// jeer: composes sentences in a terminal and looks after the word-list files.
// The command line lives here alone: the commands are plain functions.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/checker.h"
#include "cli/commands.h"
#include "cli/packer.h"
#include "cli/unpacker.h"
#include "platform/process.h"

namespace jeerbox {
namespace {

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

void AddComposeCommands(CLI::App& app, int* exitCode) {
  auto options = std::make_shared<ComposeOptions>();
  CLI::App* say = app.add_subcommand("say", "Compose sentences, as \"Insult me\" does");
  AddDrawOptions(say, options.get());
  say->callback([options, exitCode] { *exitCode = RunSay(*options); });

  CLI::App* pick = app.add_subcommand("pick", "Pick random lines of one key, expanded");
  pick->add_option("KEY", options->key, "Text key, such as Misc-Jeerbox-Noun")->required();
  AddDrawOptions(pick, options.get());
  pick->callback([options, exitCode] { *exitCode = RunPick(*options); });

  CLI::App* lines =
      app.add_subcommand("lines", "List a key's lines as read from the files, unscrambled and escaped");
  lines->add_option("KEY", options->key, "Text key, such as General-Insult")->required();
  AddRootOption(lines, options.get());
  lines->callback([options, exitCode] { *exitCode = RunLines(*options); });
}

constexpr const char* kPackHelp =
    "Pack word-list sources into the scrambled System/ files the program reads.\n"
    "\n"
    "SOURCE_DIR holds plain 8-bit (Windows-1252) text files named like their\n"
    "output: Misc.001.txt becomes Misc.001. Lines end in LF or CR LF:\n"
    "  [Misc-Jeerbox-Noun]  a head: the key, its family (Misc) up to the hyphen\n"
    "  soggy turnip         a data line: one text the program may pick\n"
    "  ; anything           a comment, kept as it is\n"
    "  (empty line)         kept\n"
    "  @marked              makes the file a marked one\n"
    "  \\[text               a data line beginning with ; [ @ or \\ : the \\ goes\n"
    "Pack writes CR LF line ends and an empty line in front of each head that\n"
    "follows a data line. It refuses, with file:line: reason, whatever the\n"
    "program would not read back as written (a data line beginning with \"j\",\n"
    "whose stored form begins with \";\", is the one most often met), and then\n"
    "writes nothing. unpack gives sources back with LF line ends: a source in\n"
    "that form, an empty line or comment in front of each later head, survives\n"
    "pack then unpack byte for byte.\n"
    "Numbered files of a packed family that the sources no longer have are\n"
    "removed from SYSTEM_DIR; other files there are left alone.";

struct PackOptions {
  std::string from;
  std::string to;
  std::string root;
};

void AddPackCommands(CLI::App& app, int* exitCode) {
  auto options = std::make_shared<PackOptions>();

  CLI::App* pack = app.add_subcommand("pack", "Pack word-list sources into System/ files");
  pack->footer(kPackHelp);
  pack->add_option("SOURCE_DIR", options->from, "Directory of FAMILY.NNN.txt sources")->required();
  pack->add_option("SYSTEM_DIR", options->to, "Directory to write FAMILY.NNN files to")->required();
  pack->callback(
      [options, exitCode] { *exitCode = RunPack(options->from, options->to, std::cout, std::cerr); });

  CLI::App* unpack = app.add_subcommand("unpack", "Turn System/ files back into sources");
  unpack->footer(
      "Writes FAMILY.NNN.txt for every FAMILY.NNN of SYSTEM_DIR, in the form pack reads\n"
      "(LF line ends). Sources there that SYSTEM_DIR has no file for are left alone.");
  unpack->add_option("SYSTEM_DIR", options->from, "Directory of FAMILY.NNN files")->required();
  unpack->add_option("SOURCE_DIR", options->to, "Directory to write sources to")->required();
  unpack->callback(
      [options, exitCode] { *exitCode = RunUnpack(options->from, options->to, std::cout, std::cerr); });

  CLI::App* check = app.add_subcommand("check", "Check the installed word lists as the program reads them");
  check->footer(
      "Reports per family and key: files, lines, marked files, lines read with a\n"
      "trailing CR, lines the reader drops, unknown tokens, bad brace groups, tokens\n"
      "that recurse, and lists too short for the composer. Exit 0 when clean, 1 not.");
  check->add_option("--root", options->root, "Program directory holding System/ (default: where jeer lies)");
  check->callback([options, exitCode] { *exitCode = RunCheck(ResolveRoot(options->root), std::cout); });
}

int Run(int argc, char** argv) {
  CLI::App app{"jeer " JEERBOX_VERSION
               " composes Jeerbox sentences in a terminal and packs, unpacks and checks\n"
               "the scrambled word-list files in System/.",
               "jeer"};
  app.set_version_flag("--version", "jeer " JEERBOX_VERSION);
  app.require_subcommand(1);
  // On Windows CLI11 would take "/dir" for an option; jeer has only "--" ones.
  app.allow_windows_style_options(false);
  app.fallthrough(false);
  int exitCode = 0;
  AddComposeCommands(app, &exitCode);
  AddPackCommands(app, &exitCode);

  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& e) {
    return app.exit(e);
  } catch (const CLI::CallForAllHelp& e) {
    return app.exit(e);
  } catch (const CLI::CallForVersion& e) {
    return app.exit(e);
  } catch (const CLI::ParseError& e) {
    std::cerr << "jeer: " << e.what() << " (try: jeer --help)\n";
    return kExitUsage;
  }
  std::fflush(stdout);
  return exitCode;
}

}  // namespace
}  // namespace jeerbox

// Nothing the commands do should throw; if something does (memory, say),
// the user gets a line saying so rather than an abort.
int main(int argc, char** argv) {
  jeerbox::UseBinaryStandardOutput();  // the sentences' bytes, CR and LF as they are
  try {
    return jeerbox::Run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::cerr << "jeer: out of memory\n";
  } catch (const std::exception& e) {
    std::cerr << "jeer: " << e.what() << "\n";
  } catch (...) {
    std::cerr << "jeer: unexpected failure\n";
  }
  return jeerbox::kExitProblem;
}
