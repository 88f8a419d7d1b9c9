// The 8-bit text of the word lists and message texts is Windows-1252;
// windows and clipboards speak Unicode. One byte is one character, both ways.
#pragma once

#include <string>
#include <string_view>

namespace jeerbox {

// Every byte becomes one UTF-16 unit. The five bytes 1252 leaves undefined
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) become the control characters of the same
// value, as Windows maps them.
std::u16string DecodeWindows1252(std::string_view bytes);
// The reverse; a character 1252 can't hold becomes '?'.
std::string EncodeWindows1252(std::u16string_view text);

}  // namespace jeerbox
