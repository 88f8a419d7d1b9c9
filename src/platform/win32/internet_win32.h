// The connection test's calls on wininet.dll, as the program names them.
#pragma once

#include "platform/internet.h"

namespace jeerbox {

// WinINet's own: the system's proxy settings and time-outs apply.
class Win32Internet : public IInternet {
 public:
  HINTERNET InternetOpenA(const char* agent, uint32_t accessType, const char* proxyName,
                          const char* proxyBypass, uint32_t flags) override;
  HINTERNET InternetOpenUrlA(HINTERNET internet, const char* url, const char* headers, uint32_t headersLength,
                             uint32_t flags, uintptr_t context) override;
  bool InternetCloseHandle(HINTERNET handle) override;
};

}  // namespace jeerbox
