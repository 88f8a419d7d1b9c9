// The Internet calls on libcurl: one synchronous GET per InternetOpenUrlA,
// the body thrown away, the proxy taken from the environment as libcurl does.
#pragma once

#include "platform/internet.h"

namespace jeerbox {

class CurlInternet : public IInternet {
 public:
  // Defaults stand in for the platform's own time-outs: long enough for a slow
  // line, short enough that a dead server doesn't freeze the window for long.
  static constexpr long kDefaultConnectTimeoutMs = 10000;
  static constexpr long kDefaultTotalTimeoutMs = 20000;

  CurlInternet(long connectTimeoutMs = kDefaultConnectTimeoutMs,
               long totalTimeoutMs = kDefaultTotalTimeoutMs);

  HINTERNET InternetOpenA(const char* agent, uint32_t accessType, const char* proxyName,
                          const char* proxyBypass, uint32_t flags) override;
  HINTERNET InternetOpenUrlA(HINTERNET internet, const char* url, const char* headers, uint32_t headersLength,
                             uint32_t flags, uintptr_t context) override;
  bool InternetCloseHandle(HINTERNET handle) override;

 private:
  long mConnectTimeoutMs;
  long mTotalTimeoutMs;
};

}  // namespace jeerbox
