// popen through /bin/sh, stderr into a temporary file.
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "helpers/run_command.h"
#include "helpers/temp_dir.h"

namespace jeerbox::testing {

CommandRun RunCommand(const std::string& commandLine) {
  const TempDir dir;
  const std::string errPath = dir.Path() + "/stderr";
  FILE* pipe = popen((commandLine + " 2>" + errPath).c_str(), "r");
  CommandRun run{-1, "", ""};
  if (pipe == nullptr) return run;
  std::array<char, 4096> buffer{};
  size_t n;
  while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0) run.out.append(buffer.data(), n);
  const int status = pclose(pipe);
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::ifstream err(errPath, std::ios::binary);
  std::ostringstream text;
  text << err.rdbuf();
  run.err = text.str();
  return run;
}

}  // namespace jeerbox::testing
