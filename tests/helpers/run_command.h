// Runs a command line through the host's shell and collects what the
// program printed, for the tests that drive the real jeer. Both streams go
// through temporary files: bytes stay bytes on every host.
#pragma once

#include <cstdlib>
#include <string>
#ifndef _WIN32
#include <sys/wait.h>
#endif

#include "helpers/temp_dir.h"

namespace jeerbox::testing {

struct CommandRun {
  int exitCode;  // the program's own, -1 when it didn't end normally
  std::string out;
  std::string err;
};

// `commandLine` goes to the shell as it is.
inline CommandRun RunCommand(const std::string& commandLine) {
  const TempDir dir;
  const auto file = [&](const char* name) { return (std::filesystem::path(dir.Path()) / name).string(); };
  int status = std::system((commandLine + " >" + file("out") + " 2>" + file("err")).c_str());
#ifndef _WIN32
  status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
  return {status, dir.Read("out"), dir.Read("err")};
}

#ifdef JEER_PATH
// Runs the jeer binary the test was built with.
inline CommandRun RunJeer(const std::string& args) { return RunCommand(std::string(JEER_PATH) + " " + args); }
#endif

}  // namespace jeerbox::testing
