// QMessageBox behind the message box calls.
#include <QMessageBox>

#include "platform/message_box.h"
#include "platform/windows_1252.h"

namespace jeerbox {

QString MessageBoxText(const std::string& text) {
  QString shown = DecodeWindows1252(text);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  shown.replace(QChar('\r'), QChar('\n'));
  return shown;
}

void QtMessageBox::MsgBox(const std::string& text, int icon, const std::string& title) {
  QMessageBox box(icon == kIconInformation ? QMessageBox::Information : QMessageBox::Warning,
                  DecodeWindows1252(title), MessageBoxText(text), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace jeerbox
