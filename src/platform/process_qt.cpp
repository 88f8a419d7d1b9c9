// Process end through the application's event loop, so that Qt and the
// audio library unwind in main() rather than from inside a handler.
#include <QCoreApplication>

#include "platform/process.h"

namespace jeerbox {

void QtProcess::End() {
  mEnded = true;
  QCoreApplication::exit(0);
}

}  // namespace jeerbox
