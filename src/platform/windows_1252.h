// The 8-bit text of the word lists and message texts is Windows-1252; the
// toolkit speaks Unicode. One byte is one character, both ways.
#pragma once

#include <QString>
#include <string>

namespace jeerbox {

// Every byte becomes one character. The five bytes 1252 leaves undefined
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) become the control characters of the same
// value, as Windows maps them.
QString DecodeWindows1252(const std::string& bytes);
// The reverse; a character 1252 can't hold becomes '?'.
std::string EncodeWindows1252(const QString& text);

}  // namespace jeerbox
