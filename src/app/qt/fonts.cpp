// fontconfig doesn't scan wine's font folder, so the file is added by hand.
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>

#include "app/qt/fonts.h"

namespace jeerbox {

QString LoadDialogFont() {
  const QString wineTahoma = QStringLiteral("/usr/share/wine/fonts/tahoma.ttf");
  if (!QFontDatabase::hasFamily(QStringLiteral("Tahoma")) && QFile::exists(wineTahoma)) {
    QFontDatabase::addApplicationFont(wineTahoma);
  }
  return QFontInfo(QFont(QStringLiteral("Tahoma"))).family();
}

}  // namespace jeerbox
