// Message boxes, the clipboard and the shell through user32 and shell32.
#include "platform/win32/desktop_win32.h"

#include <windows.h>

#include <shellapi.h>

#include <cstring>

#include "platform/win32/wide_text.h"

namespace jeerbox {
namespace {

// A moveable global block holding `size` bytes of `data`, as the clipboard
// takes them; null when memory runs out.
HGLOBAL GlobalCopy(const void* data, size_t size) {
  HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
  if (block == nullptr) return nullptr;
  void* target = GlobalLock(block);
  if (target == nullptr) {
    GlobalFree(block);
    return nullptr;
  }
  std::memcpy(target, data, size);
  GlobalUnlock(block);
  return block;
}

// The clipboard owns a block once SetClipboardData accepts it.
void Put(UINT format, const void* data, size_t size) {
  HGLOBAL block = GlobalCopy(data, size);
  if (block && SetClipboardData(format, block) == nullptr) GlobalFree(block);
}

std::string AnsiFromWide(const std::wstring& wide) {
  const int n = WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), nullptr, 0,
                                    nullptr, nullptr);
  std::string ansi(static_cast<size_t>(n > 0 ? n : 0), '\0');
  if (n > 0)
    WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), ansi.data(), n, nullptr,
                        nullptr);
  return ansi;
}

}  // namespace

void Win32MessageBox::MsgBox(const std::string& text, int icon, const std::string& title) {
  MessageBoxW(GetActiveWindow(), WideFromWindows1252(text).c_str(), WideFromWindows1252(title).c_str(),
              MB_OK | static_cast<UINT>(icon));
}

Win32Clipboard::~Win32Clipboard() {
  if (mOwner) DestroyWindow(static_cast<HWND>(mOwner));
}

// EmptyClipboard is how a program takes the clipboard over in Win32; no
// format another program put there survives a copy. A clipboard another
// program holds open stays as it is.
void Win32Clipboard::SetText(const std::string& text) {
  if (mOwner == nullptr)
    mOwner = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  if (mOwner == nullptr || !OpenClipboard(static_cast<HWND>(mOwner))) return;
  EmptyClipboard();
  const std::wstring wide = WideFromWindows1252(text);
  Put(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
  const std::string ansi = AnsiFromWide(wide);
  Put(CF_TEXT, ansi.c_str(), ansi.size() + 1);
  CloseClipboard();
}

void Win32Shell::ShellExecuteA(void* ownerWindow, const char* operation, const char* file,
                               const char* parameters, const char* directory, int showCommand) {
  if (operation == nullptr || std::strcmp(operation, "open") != 0) return;
  ::ShellExecuteA(static_cast<HWND>(ownerWindow), operation, file, parameters, directory, showCommand);
}

}  // namespace jeerbox
