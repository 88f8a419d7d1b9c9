// Runs a command line through the host's shell and collects what the
// program printed, for the tests that drive the real jeer.
#pragma once

#include <string>

namespace jeerbox::testing {

struct CommandRun {
  int exitCode;  // the program's own, -1 when it didn't end normally
  std::string out;
  std::string err;
};

// `commandLine` goes to the shell as it is; both streams come back as bytes.
CommandRun RunCommand(const std::string& commandLine);

}  // namespace jeerbox::testing
