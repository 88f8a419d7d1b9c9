// Tells the end-to-end test what a running jeerbox.exe's window holds, as
// Windows sees it: the client area's size, the text box's text (UTF-8) and
// whether Copy is enabled. Usage: window_probe CAPTION
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

std::string Utf8(const std::wstring& text) {
  const int n = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0,
                                    nullptr, nullptr);
  std::string bytes(static_cast<size_t>(n), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), n, nullptr,
                      nullptr);
  return bytes;
}

// WM_GETTEXT, which reaches a control of another process (GetWindowText
// wouldn't ask it).
std::wstring Text(HWND window) {
  const auto length = SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  text.resize(static_cast<size_t>(SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(text.size()),
                                               reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

// The dialog's child of the given class; the common controls may add a
// version to the class name, so only its end counts.
HWND ChildOfClass(HWND parent, const std::wstring& kind) {
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    wchar_t name[256] = {};
    const int n = GetClassNameW(child, name, 256);
    const std::wstring found(name, static_cast<size_t>(n));
    if (found.size() >= kind.size() &&
        _wcsicmp(found.c_str() + found.size() - kind.size(), kind.c_str()) == 0)
      return child;
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::wstring caption(argv[1], argv[1] + std::string(argv[1]).size());
  HWND dialog = FindWindowW(nullptr, caption.c_str());
  if (dialog == nullptr) return 1;
  RECT client{};
  GetClientRect(dialog, &client);
  std::printf("client %ldx%ld\n", client.right, client.bottom);
  HWND copy = FindWindowExW(dialog, nullptr, nullptr, L"Copy");
  HWND text = ChildOfClass(dialog, L"Edit");
  if (copy == nullptr || text == nullptr) return 1;
  std::printf("copy %s\n", IsWindowEnabled(copy) ? "enabled" : "disabled");
  std::printf("text %s\n", Utf8(Text(text)).c_str());
  return 0;
}
