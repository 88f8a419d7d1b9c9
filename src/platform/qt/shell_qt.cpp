#include "platform/qt/shell_qt.h"

#include <QDesktopServices>
#include <QUrl>
#include <cstring>

namespace jeerbox {

void QtShell::ShellExecuteA(void*, const char* operation, const char* file, const char*, const char*, int) {
  if (!operation || !file || std::strcmp(operation, "open") != 0) return;
  const QUrl url = QUrl::fromEncoded(QByteArray(file), QUrl::TolerantMode);
  if (url.isValid()) QDesktopServices::openUrl(url);
}

}  // namespace jeerbox
