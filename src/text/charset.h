// Case mapping of Windows-1252 letters, the 8-bit text the word lists hold.
#pragma once

namespace jeerbox {

char ToUpper1252(char c);
char ToLower1252(char c);

}  // namespace jeerbox
