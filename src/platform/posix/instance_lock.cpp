#include "platform/posix/instance_lock.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>

namespace jeerbox {

InstanceLock::InstanceLock(const std::string& name) : mName(name + "-" + std::to_string(getuid())) {}

InstanceLock::~InstanceLock() {
  if (mSocket >= 0) close(mSocket);
}

bool InstanceLock::HeldElsewhere() {
  if (mSocket >= 0) return false;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  // A leading NUL puts the name in the abstract namespace.
  const size_t length = std::min(mName.size(), sizeof address.sun_path - 1);
  std::memcpy(address.sun_path + 1, mName.data(), length);
  const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return false;
  const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
  if (bind(fd, reinterpret_cast<const sockaddr*>(&address), size) != 0) {
    const bool inUse = errno == EADDRINUSE;
    close(fd);
    // Only a name in use means another copy; any other failure lets the
    // program start rather than lock the user out.
    return inUse;
  }
  mSocket = fd;
  return false;
}

}  // namespace jeerbox
