// The process under Qt's event loop; the previous instance is told by the
// POSIX instance lock.
#pragma once

#include <string>

#include "platform/posix/instance_lock.h"
#include "platform/process.h"

namespace jeerbox {

class QtProcess : public IProcess {
 public:
  // Takes the command line before QApplication removes its own options from
  // argv, so make it first. `lockName` tells programs apart; the display
  // is added to it, so that each desktop session of a user (a remote one, a
  // private X server for tests) has a lock of its own.
  QtProcess(int argc, const char* const* argv, const std::string& lockName);
  QtProcess(const QtProcess&) = delete;
  QtProcess& operator=(const QtProcess&) = delete;

  std::string ExecutableDirectory() override;
  std::string CommandLine() override { return mCommandLine; }
  bool PrevInstance() override;
  // Through the event loop, so that Qt and the audio library unwind in
  // main() rather than from inside a handler.
  void End() override;
  bool Ended() const override { return mEnded; }

  const std::string& LockName() const { return mLock.Name(); }

 private:
  std::string mCommandLine;
  InstanceLock mLock;
  bool mEnded = false;
};

// The arguments after the program name, joined by blanks.
std::string JoinArguments(int argc, const char* const* argv);

}  // namespace jeerbox
