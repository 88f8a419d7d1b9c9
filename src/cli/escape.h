// Shows 8-bit text on one terminal line: control bytes and bytes from 0x80
// as escapes, so a stray CR or a trailing byte is visible.
#pragma once

#include <string>
#include <string_view>

namespace jeerbox {

// "\" as "\\", CR "\r", LF "\n", TAB "\t", other bytes below 0x20, 0x7F and
// bytes from 0x80 as "\xhh"; everything else as it is.
std::string EscapeBytes(std::string_view text);

}  // namespace jeerbox
