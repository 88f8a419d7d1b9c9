// The instance lock on QLocalServer. Linux's abstract socket names are
// per network namespace, not per user, hence the uid in the name; the
// display is in it too, so that each desktop session of a user (a remote
// one, a private X server for tests) has a lock of its own.
#include <unistd.h>

#include <QLocalServer>
#include <cstdlib>

#include "platform/previous_instance.h"

namespace jeerbox {
namespace {

std::string DisplaySession() {
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"}) {
    const char* value = std::getenv(variable);
    if (value && *value) return value;
  }
  return std::string();
}

}  // namespace

LocalSocketInstanceLock::LocalSocketInstanceLock(const std::string& name)
    : mSocketName(name + "-" + std::to_string(getuid()) + "-" + DisplaySession()) {}

LocalSocketInstanceLock::~LocalSocketInstanceLock() = default;

bool LocalSocketInstanceLock::PrevInstance() {
  if (mServer) return false;
  auto server = std::make_unique<QLocalServer>();
  server->setSocketOptions(QLocalServer::AbstractNamespaceOption);
  if (!server->listen(QString::fromStdString(mSocketName))) {
    // Only a name in use means another copy; any other failure lets the
    // program start rather than lock the user out.
    return server->serverError() == QAbstractSocket::AddressInUseError;
  }
  mServer = std::move(server);
  return false;
}

}  // namespace jeerbox
