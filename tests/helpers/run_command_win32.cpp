// _popen through cmd.exe, read as bytes, stderr into a temporary file.
#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "helpers/run_command.h"
#include "helpers/temp_dir.h"

namespace jeerbox::testing {

CommandRun RunCommand(const std::string& commandLine) {
  const TempDir dir;
  const std::string errPath = dir.Path() + "\\stderr";
  // cmd /c drops the outer pair of quotes and keeps those inside.
  FILE* pipe = _popen(("\"" + commandLine + " 2>\"" + errPath + "\"\"").c_str(), "rb");
  CommandRun run{-1, "", ""};
  if (pipe == nullptr) return run;
  std::array<char, 4096> buffer{};
  size_t n;
  while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0) run.out.append(buffer.data(), n);
  run.exitCode = _pclose(pipe);
  std::ifstream err(errPath, std::ios::binary);
  std::ostringstream text;
  text << err.rdbuf();
  run.err = text.str();
  return run;
}

}  // namespace jeerbox::testing
