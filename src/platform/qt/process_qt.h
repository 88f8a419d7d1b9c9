// The process under Qt's event loop. The previous-instance lock is an
// abstract-namespace local socket: nothing on disk, gone when the process
// dies, however it dies.
#pragma once

#include <memory>
#include <string>

#include "platform/process.h"

class QLocalServer;

namespace jeerbox {

class QtProcess : public IProcess {
 public:
  // Takes the command line before QApplication removes its own options from
  // argv, so make it first. `lockName` tells programs apart; the user's id
  // and the display are added to it.
  QtProcess(int argc, const char* const* argv, const std::string& lockName);
  ~QtProcess() override;
  QtProcess(const QtProcess&) = delete;
  QtProcess& operator=(const QtProcess&) = delete;

  std::string ExecutableDirectory() override;
  std::string CommandLine() override { return mCommandLine; }
  bool PrevInstance() override;
  // Through the event loop, so that Qt and the audio library unwind in
  // main() rather than from inside a handler.
  void End() override;
  bool Ended() const override { return mEnded; }

  const std::string& LockName() const { return mLockName; }

 private:
  std::string mCommandLine;
  std::string mLockName;
  std::unique_ptr<QLocalServer> mLock;
  bool mEnded = false;
};

// The arguments after the program name, joined by blanks.
std::string JoinArguments(int argc, const char* const* argv);

}  // namespace jeerbox
