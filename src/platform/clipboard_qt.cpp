// Qt's clipboard. Under X the text stays available while this process runs.
#include <QClipboard>
#include <QGuiApplication>

#include "platform/clipboard.h"

namespace jeerbox {

void QtClipboard::SetText(const QString& text) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (clipboard) clipboard->setText(text, QClipboard::Clipboard);
}

}  // namespace jeerbox
