#include "platform/qt/qt_text.h"

#include "support/windows_1252.h"

namespace jeerbox {

QString ToQString(std::string_view bytes) { return QString::fromStdU16String(DecodeWindows1252(bytes)); }

}  // namespace jeerbox
