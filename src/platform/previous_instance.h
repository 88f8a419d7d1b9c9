// Whether another copy of the program runs for this user on this display.
// The lock is an abstract-namespace local socket: nothing on disk, gone when
// the process dies, however it dies.
#pragma once

#include <memory>
#include <string>

class QLocalServer;

namespace jeerbox {

class IPreviousInstance {
 public:
  virtual ~IPreviousInstance() = default;
  // True when a previous instance holds the lock. The first call that finds
  // none takes the lock for this process.
  virtual bool PrevInstance() = 0;
};

class LocalSocketInstanceLock : public IPreviousInstance {
 public:
  // `name` tells programs apart; the user's id and the display are added.
  explicit LocalSocketInstanceLock(const std::string& name);
  ~LocalSocketInstanceLock() override;

  bool PrevInstance() override;
  const std::string& SocketName() const { return mSocketName; }

 private:
  std::string mSocketName;
  std::unique_ptr<QLocalServer> mServer;
};

}  // namespace jeerbox
