// Facts about the running process and its end: where the program lies, what
// it was started with, whether another copy runs, and the way out.
#pragma once

#include <string>

namespace jeerbox {

class IProcess {
 public:
  virtual ~IProcess() = default;
  // The directory of the running executable, with no trailing separator.
  virtual std::string ExecutableDirectory() = 0;
  // What followed the program name on its command line, untrimmed; "" when
  // nothing did.
  virtual std::string CommandLine() = 0;
  // True when a previous instance of the program runs. The first call that
  // finds none claims the place for this process.
  virtual bool PrevInstance() = 0;
  // Ends the process: the event loop stops and main() returns. Before the
  // loop has started, Ended() tells main() not to start it.
  virtual void End() = 0;
  virtual bool Ended() const = 0;
};

// The host's own answer, for programs that need no more of the process
// than this (jeer): links resolved, "" when the host can't tell. Each host
// library defines it.
std::string ExecutableDirectory();

// Makes standard output carry bytes as they are written: a host's C library
// may translate line ends there (Windows writes "\n" as "\r\n"). Programs
// whose output is data (jeer) call it first. Each host library defines it.
void UseBinaryStandardOutput();

}  // namespace jeerbox
