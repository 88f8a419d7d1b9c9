// Opening URLs through QDesktopServices: the desktop's URL handler
// (xdg-open under X), started with the URL as its one argument, never
// through a shell.
#pragma once

#include "platform/shell.h"

namespace jeerbox {

class QtShell : public IShell {
 public:
  void ShellExecuteA(void* ownerWindow, const char* operation, const char* file, const char* parameters,
                     const char* directory, int showCommand) override;
};

}  // namespace jeerbox
