// The process under a Win32 message loop: the program directory from
// GetModuleFileNameA, the command line from GetCommandLineA, a named mutex
// for the previous instance, and the end through WM_QUIT.
#pragma once

#include <string>

#include "platform/process.h"

namespace jeerbox {

class Win32Process : public IProcess {
 public:
  // `instanceName` names the mutex; it lives in the session's namespace, so
  // each logged-on user has a place of their own.
  explicit Win32Process(std::string instanceName);
  ~Win32Process() override;
  Win32Process(const Win32Process&) = delete;
  Win32Process& operator=(const Win32Process&) = delete;

  std::string ExecutableDirectory() override;
  std::string CommandLine() override;
  bool PrevInstance() override;
  // Posts WM_QUIT: the message loop ends and WinMain unwinds.
  void End() override;
  bool Ended() const override { return mEnded; }

 private:
  std::string mInstanceName;
  void* mInstanceMutex = nullptr;
  bool mEnded = false;
};

// What follows the program name in a Windows command line, without the
// blanks and tabs that separate them. The name may be in quotes, and then
// may hold blanks.
std::string CommandLineArguments(const std::string& commandLine);

}  // namespace jeerbox
