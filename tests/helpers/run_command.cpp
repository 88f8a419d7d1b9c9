// Through the host's shell, both streams into temporary files: bytes stay
// bytes on every host.
#include "helpers/run_command.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#ifndef _WIN32
#include <sys/wait.h>
#endif

#include "helpers/temp_dir.h"

namespace jeerbox::testing {

CommandRun RunCommand(const std::string& commandLine) {
  const TempDir dir;
  const auto file = [&](const char* name) { return (std::filesystem::path(dir.Path()) / name).string(); };
  int status = std::system((commandLine + " >" + file("out") + " 2>" + file("err")).c_str());
#ifndef _WIN32
  status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
  const auto read = [&](const char* name) {
    std::ostringstream text;
    text << std::ifstream(file(name), std::ios::binary).rdbuf();
    return text.str();
  };
  return {status, read("out"), read("err")};
}

}  // namespace jeerbox::testing
