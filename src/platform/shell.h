// Handing a document or URL to the desktop: the browser for a web address.
#pragma once

namespace jeerbox {

constexpr int SW_HIDE = 0;

class IShell {
 public:
  virtual ~IShell() = default;
  // Only the verb "open" is known; anything else does nothing. The result is
  // never looked at, so there is none.
  virtual void ShellExecuteA(void* ownerWindow, const char* operation, const char* file,
                             const char* parameters, const char* directory, int showCommand) = 0;
};

}  // namespace jeerbox
