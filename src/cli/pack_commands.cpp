// jeer pack, unpack and check: the word-list files from a terminal.
#include <iostream>
#include <memory>
#include <string>

#include "cli/checker.h"
#include "cli/commands.h"
#include "cli/packer.h"
#include "cli/unpacker.h"

namespace jeerbox {
namespace {

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

}  // namespace

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

}  // namespace jeerbox
