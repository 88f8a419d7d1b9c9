// Storage for the command line as main() received it.
#include "platform/command_line.h"

namespace jeerbox {
namespace {

std::string& Stored() {
  static std::string text;
  return text;
}

}  // namespace

void SetCommandLine(int argc, const char* const* argv) {
  std::string text;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) text += ' ';
    text += argv[i];
  }
  Stored() = text;
}

void SetCommandLineText(const std::string& text) { Stored() = text; }

std::string Command() { return Stored(); }

}  // namespace jeerbox
