// wchar_t is a UTF-16 unit on Windows, as support's decoder gives them.
#include "platform/win32/wide_text.h"

#include <windows.h>

#include "support/windows_1252.h"

namespace jeerbox {

std::wstring WideFromWindows1252(const std::string& text) {
  const std::u16string units = DecodeWindows1252(text);
  return std::wstring(units.begin(), units.end());
}

std::wstring WideFromAnsiPath(const std::string& path) {
  if (path.empty()) return std::wstring();
  const int n = MultiByteToWideChar(CP_ACP, 0, path.data(), static_cast<int>(path.size()), nullptr, 0);
  std::wstring wide(static_cast<size_t>(n > 0 ? n : 0), L'\0');
  if (n > 0) MultiByteToWideChar(CP_ACP, 0, path.data(), static_cast<int>(path.size()), wide.data(), n);
  return wide;
}

}  // namespace jeerbox
