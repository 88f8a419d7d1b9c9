#include "platform/qt/clipboard_qt.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/qt_text.h"

namespace jeerbox {

void QtClipboard::SetText(const std::string& text) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (clipboard) clipboard->setText(ToQString(text), QClipboard::Clipboard);
}

}  // namespace jeerbox
