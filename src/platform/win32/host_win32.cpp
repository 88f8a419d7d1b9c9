// The Windows host's facts for programs that need no more of it: where the
// executable lies, its standard output, its error texts.
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <string>

#include "platform/process.h"
#include "platform/win32/system_error.h"

namespace jeerbox {

std::string ExecutableDirectory() {
  std::string path(MAX_PATH, '\0');
  for (;;) {
    const DWORD n = GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (n == 0) return std::string();
    if (n < path.size()) {
      path.resize(n);
      break;
    }
    path.resize(path.size() * 2);  // cut short: try again with room
  }
  const size_t separator = path.find_last_of("\\/");
  return separator == std::string::npos ? std::string() : path.substr(0, separator);
}

void UseBinaryStandardOutput() { _setmode(_fileno(stdout), _O_BINARY); }

std::string SystemErrorText(unsigned long code) {
  char* message = nullptr;
  const DWORD n = FormatMessageA(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
      code, 0, reinterpret_cast<char*>(&message), 0, nullptr);
  std::string text = n > 0 && message ? std::string(message, n) : std::string();
  LocalFree(message);
  while (!text.empty() &&
         (text.back() == '\r' || text.back() == '\n' || text.back() == '.' || text.back() == ' '))
    text.pop_back();
  return text.empty() ? "error " + std::to_string(code) : text;
}

}  // namespace jeerbox
