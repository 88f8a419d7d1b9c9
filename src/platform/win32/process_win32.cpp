// The mutex is the system's to remove: it goes with the last handle, when
// the process ends however it ends.
#include "platform/win32/process_win32.h"

#include <windows.h>

namespace jeerbox {

std::string CommandLineArguments(const std::string& commandLine) {
  size_t at = 0;
  if (!commandLine.empty() && commandLine[0] == '"') {
    const size_t close = commandLine.find('"', 1);
    at = close == std::string::npos ? commandLine.size() : close + 1;
  } else {
    at = commandLine.find_first_of(" \t");
    if (at == std::string::npos) at = commandLine.size();
  }
  at = commandLine.find_first_not_of(" \t", at);
  return at == std::string::npos ? std::string() : commandLine.substr(at);
}

Win32Process::Win32Process(std::string instanceName) : mInstanceName(std::move(instanceName)) {}

Win32Process::~Win32Process() {
  if (mInstanceMutex) CloseHandle(mInstanceMutex);
}

std::string Win32Process::ExecutableDirectory() { return jeerbox::ExecutableDirectory(); }

std::string Win32Process::CommandLine() { return CommandLineArguments(GetCommandLineA()); }

// Only a mutex that exists already means another copy; any other failure
// lets the program start rather than lock the user out.
bool Win32Process::PrevInstance() {
  if (mInstanceMutex) return false;
  HANDLE mutex = CreateMutexA(nullptr, FALSE, mInstanceName.c_str());
  if (mutex == nullptr) return false;
  if (GetLastError() == ERROR_ALREADY_EXISTS) {
    CloseHandle(mutex);
    return true;
  }
  mInstanceMutex = mutex;
  return false;
}

void Win32Process::End() {
  mEnded = true;
  PostQuitMessage(0);
}

}  // namespace jeerbox
