#include "platform/qt/process_qt.h"

#include <QCoreApplication>
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
    : mCommandLine(JoinArguments(argc, argv)), mLock(lockName + "-" + DisplaySession()) {}

std::string QtProcess::ExecutableDirectory() { return jeerbox::ExecutableDirectory(); }

bool QtProcess::PrevInstance() { return mLock.HeldElsewhere(); }

void QtProcess::End() {
  mEnded = true;
  QCoreApplication::exit(0);
}

}  // namespace jeerbox
