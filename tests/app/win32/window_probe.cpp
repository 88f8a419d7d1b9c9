// Tells the end-to-end test what a running jeerbox.exe's window holds, as
// Windows sees it: whether Copy is enabled and the text box's text (UTF-8).
// Usage: window_probe CAPTION
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

// The dialog's child whose class name ends in `kind` (the common controls
// may add a version to it).
HWND ChildOfClass(HWND parent, const std::wstring& kind) {
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    wchar_t name[256] = {};
    const std::wstring found(name, static_cast<size_t>(GetClassNameW(child, name, 256)));
    if (found.size() >= kind.size() &&
        _wcsicmp(found.c_str() + found.size() - kind.size(), kind.c_str()) == 0)
      return child;
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  HWND dialog = FindWindowA(nullptr, argv[1]);
  HWND copy = dialog ? FindWindowExW(dialog, nullptr, nullptr, L"Copy") : nullptr;
  HWND edit = dialog ? ChildOfClass(dialog, L"Edit") : nullptr;
  if (copy == nullptr || edit == nullptr) return 1;
  // WM_GETTEXT reaches a control of another process (GetWindowText wouldn't ask it).
  std::wstring text(static_cast<size_t>(SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
  text.resize(static_cast<size_t>(
      SendMessageW(edit, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  std::string utf8(text.size() * 3, '\0');
  utf8.resize(
      static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                              utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr)));
  std::printf("copy %s\ntext %s\n", IsWindowEnabled(copy) ? "enabled" : "disabled", utf8.c_str());
  return 0;
}
