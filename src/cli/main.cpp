// jeer: composes sentences in a terminal and looks after the word-list files.
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "platform/process.h"

namespace {

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
  jeerbox::AddComposeCommands(app, &exitCode);
  jeerbox::AddPackCommands(app, &exitCode);

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
    return jeerbox::kExitUsage;
  }
  std::fflush(stdout);
  return exitCode;
}

}  // namespace

// Nothing the commands do should throw; if something does (memory, say),
// the user gets a line saying so rather than an abort.
int main(int argc, char** argv) {
  jeerbox::UseBinaryStandardOutput();  // the sentences' bytes, CR and LF as they are
  try {
    return Run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::cerr << "jeer: out of memory\n";
  } catch (const std::exception& e) {
    std::cerr << "jeer: " << e.what() << "\n";
  } catch (...) {
    std::cerr << "jeer: unexpected failure\n";
  }
  return jeerbox::kExitProblem;
}
