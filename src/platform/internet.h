// The three Internet calls the connection test makes, named as the program
// knows them: open a session, open a URL, close a handle. A handle is 0 when
// the call failed.
#pragma once

#include <cstdint>

namespace jeerbox {

using HINTERNET = void*;

// Flags of InternetOpenUrlA the connection test passes: reach the server,
// keep no copy, keep the connection.
constexpr uint32_t INTERNET_FLAG_RELOAD = 0x80000000u;
constexpr uint32_t INTERNET_FLAG_NO_CACHE_WRITE = 0x04000000u;
constexpr uint32_t INTERNET_FLAG_KEEP_CONNECTION = 0x00400000u;
constexpr uint32_t INTERNET_OPEN_TYPE_PRECONFIG = 0;

class IInternet {
 public:
  virtual ~IInternet() = default;
  // A session handle, or 0.
  virtual HINTERNET InternetOpenA(const char* agent, uint32_t accessType, const char* proxyName,
                                  const char* proxyBypass, uint32_t flags) = 0;
  // A request handle when the server gave an HTTP answer of any status, or 0.
  virtual HINTERNET InternetOpenUrlA(HINTERNET internet, const char* url, const char* headers,
                                     uint32_t headersLength, uint32_t flags, uintptr_t context) = 0;
  virtual bool InternetCloseHandle(HINTERNET handle) = 0;
};

}  // namespace jeerbox
