// The program's 8-bit Windows-1252 text as Qt's strings.
#pragma once

#include <QString>
#include <string_view>

namespace jeerbox {

QString ToQString(std::string_view bytes);

}  // namespace jeerbox
