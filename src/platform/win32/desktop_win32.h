// The desktop's services on Win32: message boxes, the clipboard, and the
// shell that opens a URL in the browser.
#pragma once

#include "platform/clipboard.h"
#include "platform/message_box.h"
#include "platform/shell.h"

namespace jeerbox {

// MessageBoxW with the text decoded from Windows-1252, so every character
// shows as it is meant whatever the system's ANSI code page; the line
// breaks (CR alone, too) go through as they are. The box is modal to the
// thread's active window.
class Win32MessageBox : public IMessageBox {
 public:
  void MsgBox(const std::string& text, int icon, const std::string& title) override;
};

// CF_UNICODETEXT from the decoded text, and CF_TEXT from the same
// characters in the system's ANSI code page: with both present Windows
// converts neither, so every reader gets the sentence's characters.
class Win32Clipboard : public IClipboard {
 public:
  Win32Clipboard() = default;
  ~Win32Clipboard() override;
  Win32Clipboard(const Win32Clipboard&) = delete;
  Win32Clipboard& operator=(const Win32Clipboard&) = delete;

  void SetText(const std::string& text) override;

 private:
  // The clipboard's owner: a message-only window of its own, made on first
  // use, so that copying needs no visible window.
  void* mOwner = nullptr;
};

class Win32Shell : public IShell {
 public:
  void ShellExecuteA(void* ownerWindow, const char* operation, const char* file, const char* parameters,
                     const char* directory, int showCommand) override;
};

}  // namespace jeerbox
