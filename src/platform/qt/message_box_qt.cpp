#include "platform/qt/message_box_qt.h"

#include <QMessageBox>

#include "platform/qt/qt_text.h"

namespace jeerbox {

QString MessageBoxText(const std::string& text) {
  QString shown = ToQString(text);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  shown.replace(QChar('\r'), QChar('\n'));
  return shown;
}

void QtMessageBox::MsgBox(const std::string& text, int icon, const std::string& title) {
  QMessageBox box(icon == kIconInformation ? QMessageBox::Information : QMessageBox::Warning,
                  ToQString(title), MessageBoxText(text), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace jeerbox
