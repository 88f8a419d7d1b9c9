// The program's command line as one string: the arguments after the program
// name joined by blanks, taken before the toolkit removes its own options.
#pragma once

#include <string>

namespace jeerbox {

// Records argv[1..argc-1]. Call first thing in main().
void SetCommandLine(int argc, const char* const* argv);
// Puts `text` in place of the recorded command line (tests).
void SetCommandLineText(const std::string& text);
// The recorded command line, untrimmed; "" when there was none.
std::string Command();

}  // namespace jeerbox
