// A lock that says whether another copy of a program runs: a socket bound
// to an abstract-namespace name (Linux), which nothing writes to disk and
// which goes when the process dies, however it dies.
#pragma once

#include <string>

namespace jeerbox {

class InstanceLock {
 public:
  // `name` tells programs apart; the user's id is added, since abstract
  // names are per network namespace, not per user.
  explicit InstanceLock(const std::string& name);
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // True when another process holds the name. The first call that finds
  // it free claims it for this process; later calls say false.
  bool HeldElsewhere();
  const std::string& Name() const { return mName; }

 private:
  std::string mName;
  int mSocket = -1;
};

}  // namespace jeerbox
