// CreateProcessA with stdout on a pipe and stderr in a temporary file: no
// shell in between, so a run costs one process, and bytes stay bytes.
#include <windows.h>

#include <array>
#include <fstream>
#include <sstream>

#include "helpers/run_command.h"
#include "helpers/temp_dir.h"

namespace jeerbox::testing {

CommandRun RunCommand(const std::string& commandLine) {
  CommandRun run{-1, "", ""};
  const TempDir dir;
  const std::string errPath = dir.Path() + "\\stderr";
  SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
  HANDLE readOut = nullptr, writeOut = nullptr;
  if (!CreatePipe(&readOut, &writeOut, &inherit, 0)) return run;
  SetHandleInformation(readOut, HANDLE_FLAG_INHERIT, 0);
  HANDLE err = CreateFileA(errPath.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = writeOut;
  startup.hStdError = err;
  PROCESS_INFORMATION process{};
  std::string line = commandLine;
  const bool started =
      CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process);
  CloseHandle(writeOut);
  CloseHandle(err);
  if (started) {
    std::array<char, 4096> buffer{};
    DWORD n = 0;
    while (ReadFile(readOut, buffer.data(), static_cast<DWORD>(buffer.size()), &n, nullptr) && n > 0)
      run.out.append(buffer.data(), n);
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    if (GetExitCodeProcess(process.hProcess, &code)) run.exitCode = static_cast<int>(code);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
  }
  CloseHandle(readOut);
  std::ifstream errText(errPath, std::ios::binary);
  std::ostringstream text;
  text << errText.rdbuf();
  run.err = text.str();
  return run;
}

}  // namespace jeerbox::testing
