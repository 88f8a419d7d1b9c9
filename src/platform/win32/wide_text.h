// Text between the program's 8-bit strings and the W calls of Windows.
#pragma once

#include <string>

namespace jeerbox {

// The program's own texts (sentences, messages) are Windows-1252 whatever
// the system's code page: decoded character for character.
std::wstring WideFromWindows1252(const std::string& text);
// Paths came from the A calls, so they are in the system's ANSI code page.
std::wstring WideFromAnsiPath(const std::string& path);

}  // namespace jeerbox
