// Linux's abstract socket names are per network namespace, not per user,
// hence the uid in the lock's name; the display is in it too, so that each
// desktop session of a user (a remote one, a private X server for tests)
// has a lock of its own.
#include "platform/qt/process_qt.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QLocalServer>
#include <cstdlib>

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

std::string JoinArguments(int argc, const char* const* argv) {
  std::string text;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) text += ' ';
    text += argv[i];
  }
  return text;
}

QtProcess::QtProcess(int argc, const char* const* argv, const std::string& lockName)
    : mCommandLine(JoinArguments(argc, argv)),
      mLockName(lockName + "-" + std::to_string(getuid()) + "-" + DisplaySession()) {}

QtProcess::~QtProcess() = default;

std::string QtProcess::ExecutableDirectory() { return jeerbox::ExecutableDirectory(); }

bool QtProcess::PrevInstance() {
  if (mLock) return false;
  auto server = std::make_unique<QLocalServer>();
  server->setSocketOptions(QLocalServer::AbstractNamespaceOption);
  if (!server->listen(QString::fromStdString(mLockName))) {
    // Only a name in use means another copy; any other failure lets the
    // program start rather than lock the user out.
    return server->serverError() == QAbstractSocket::AddressInUseError;
  }
  mLock = std::move(server);
  return false;
}

void QtProcess::End() {
  mEnded = true;
  QCoreApplication::exit(0);
}

}  // namespace jeerbox
