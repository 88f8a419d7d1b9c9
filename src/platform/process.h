// Ending the process from inside the event loop.
#pragma once

namespace jeerbox {

class IProcess {
 public:
  virtual ~IProcess() = default;
  // Ends the process: the event loop stops and main() returns. Before the
  // loop has started, Ended() tells main() not to start it.
  virtual void End() = 0;
  virtual bool Ended() const = 0;
};

class QtProcess : public IProcess {
 public:
  void End() override;
  bool Ended() const override { return mEnded; }

 private:
  bool mEnded = false;
};

}  // namespace jeerbox
