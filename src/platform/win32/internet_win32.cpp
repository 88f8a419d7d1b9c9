// Straight through to wininet.dll. Its header defines the flag names the
// seam declares as constants, so it comes after the seam.
#include "platform/win32/internet_win32.h"

#include <windows.h>

#include <wininet.h>

namespace jeerbox {

HINTERNET Win32Internet::InternetOpenA(const char* agent, uint32_t accessType, const char* proxyName,
                                       const char* proxyBypass, uint32_t flags) {
  return ::InternetOpenA(agent, accessType, proxyName, proxyBypass, flags);
}

HINTERNET Win32Internet::InternetOpenUrlA(HINTERNET internet, const char* url, const char* headers,
                                          uint32_t headersLength, uint32_t flags, uintptr_t context) {
  if (internet == nullptr) return nullptr;
  return ::InternetOpenUrlA(internet, url, headers, headersLength, flags, context);
}

bool Win32Internet::InternetCloseHandle(HINTERNET handle) {
  return handle != nullptr && ::InternetCloseHandle(handle) != 0;
}

}  // namespace jeerbox
