// libcurl behind the Internet calls, loaded on the first of them. Handles
// are small heap objects that say which kind they are, so closing either
// kind goes through one call.
#include "platform/curl/internet_curl.h"

#include <string>

#include "platform/curl/curl_library.h"

namespace jeerbox {
namespace {

enum class HandleKind { kSession, kRequest };

struct Handle {
  explicit Handle(HandleKind k) : kind(k) {}
  HandleKind kind;
  std::string agent;  // sessions only
  long status = 0;    // requests only: the HTTP status the server answered
};

size_t DiscardBody(char*, size_t size, size_t count, void*) { return size * count; }

// The cache flags become request headers: any cache on the way must pass the
// request on to the server.
curl_slist* CacheHeaders(const CurlLibrary& curl, uint32_t flags) {
  if ((flags & (INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE)) == 0) return nullptr;
  curl_slist* list = curl.curl_slist_append(nullptr, "Cache-Control: no-cache");
  return curl.curl_slist_append(list, "Pragma: no-cache");
}

}  // namespace

CurlInternet::CurlInternet(long connectTimeoutMs, long totalTimeoutMs)
    : mConnectTimeoutMs(connectTimeoutMs), mTotalTimeoutMs(totalTimeoutMs) {}

HINTERNET CurlInternet::InternetOpenA(const char* agent, uint32_t, const char*, const char*, uint32_t) {
  if (Curl() == nullptr) return nullptr;
  auto* session = new Handle(HandleKind::kSession);
  session->agent = agent ? agent : "";
  return session;
}

HINTERNET CurlInternet::InternetOpenUrlA(HINTERNET internet, const char* url, const char*, uint32_t,
                                         uint32_t flags, uintptr_t) {
  auto* session = static_cast<Handle*>(internet);
  if (!session || session->kind != HandleKind::kSession || !url) return nullptr;
  const CurlLibrary* lib = Curl();
  CURL* easy = lib ? lib->curl_easy_init() : nullptr;
  if (!easy) return nullptr;
  curl_slist* headers = CacheHeaders(*lib, flags);
  lib->curl_easy_setopt(easy, CURLOPT_URL, url);
  lib->curl_easy_setopt(easy, CURLOPT_USERAGENT, session->agent.c_str());
  lib->curl_easy_setopt(easy, CURLOPT_HTTPHEADER, headers);
  lib->curl_easy_setopt(easy, CURLOPT_HTTPGET, 1L);
  lib->curl_easy_setopt(easy, CURLOPT_FOLLOWLOCATION, 0L);
  lib->curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
  lib->curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS, mConnectTimeoutMs);
  lib->curl_easy_setopt(easy, CURLOPT_TIMEOUT_MS, mTotalTimeoutMs);
  lib->curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, DiscardBody);
  lib->curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
  const CURLcode result = lib->curl_easy_perform(easy);
  long status = 0;
  lib->curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
  lib->curl_easy_cleanup(easy);
  lib->curl_slist_free_all(headers);
  // Any HTTP answer counts, whatever its status; no answer (refused, silent,
  // not HTTP, timed out) is a failure.
  if (result != CURLE_OK || status == 0) return nullptr;
  auto* request = new Handle(HandleKind::kRequest);
  request->status = status;
  return request;
}

bool CurlInternet::InternetCloseHandle(HINTERNET handle) {
  if (!handle) return false;
  delete static_cast<Handle*>(handle);
  return true;
}

}  // namespace jeerbox
