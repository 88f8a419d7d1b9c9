#include "wordlist_test_util.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>

namespace jeerbox::testing {

ToolRun RunJeer(const std::string& args) {
  char errPath[] = "/tmp/jeer-stderr-XXXXXX";
  const int fd = mkstemp(errPath);
  close(fd);
  const std::string command = std::string(JEER_PATH) + " " + args + " 2>" + errPath;
  FILE* pipe = popen(command.c_str(), "r");
  ToolRun run{-1, "", ""};
  std::array<char, 4096> buffer{};
  size_t n;
  while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0) run.out.append(buffer.data(), n);
  const int status = pclose(pipe);
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::ifstream err(errPath, std::ios::binary);
  std::ostringstream text;
  text << err.rdbuf();
  run.err = text.str();
  unlink(errPath);
  return run;
}

}  // namespace jeerbox::testing
