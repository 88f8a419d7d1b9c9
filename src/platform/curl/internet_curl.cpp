// libcurl behind the Internet calls. Handles are small heap objects that
// say which kind they are, so closing either kind goes through one call.
#include "platform/curl/internet_curl.h"

#include <curl/curl.h>

#include <mutex>
#include <string>

namespace jeerbox {
namespace {

enum class HandleKind { kSession, kRequest };

struct Handle {
  explicit Handle(HandleKind k) : kind(k) {}
  HandleKind kind;
  std::string agent;  // sessions only
  long status = 0;    // requests only: the HTTP status the server answered
};

void InitCurlOnce() {
  static std::once_flag once;
  std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

size_t DiscardBody(char*, size_t size, size_t count, void*) { return size * count; }

// The cache flags become request headers: any cache on the way must pass the
// request on to the server.
curl_slist* CacheHeaders(uint32_t flags) {
  if ((flags & (INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE)) == 0) return nullptr;
  curl_slist* list = curl_slist_append(nullptr, "Cache-Control: no-cache");
  return curl_slist_append(list, "Pragma: no-cache");
}

}  // namespace

CurlInternet::CurlInternet(long connectTimeoutMs, long totalTimeoutMs)
    : mConnectTimeoutMs(connectTimeoutMs), mTotalTimeoutMs(totalTimeoutMs) {}

HINTERNET CurlInternet::InternetOpenA(const char* agent, uint32_t, const char*, const char*, uint32_t) {
  InitCurlOnce();
  auto* session = new Handle(HandleKind::kSession);
  session->agent = agent ? agent : "";
  return session;
}

HINTERNET CurlInternet::InternetOpenUrlA(HINTERNET internet, const char* url, const char*, uint32_t,
                                         uint32_t flags, uintptr_t) {
  auto* session = static_cast<Handle*>(internet);
  if (!session || session->kind != HandleKind::kSession || !url) return nullptr;
  CURL* curl = curl_easy_init();
  if (!curl) return nullptr;
  curl_slist* headers = CacheHeaders(flags);
  curl_easy_setopt(curl, CURLOPT_URL, url);
  curl_easy_setopt(curl, CURLOPT_USERAGENT, session->agent.c_str());
  curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers);
  curl_easy_setopt(curl, CURLOPT_HTTPGET, 1L);
  curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
  curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, mConnectTimeoutMs);
  curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, mTotalTimeoutMs);
  curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, DiscardBody);
  curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
  const CURLcode result = curl_easy_perform(curl);
  long status = 0;
  curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
  curl_easy_cleanup(curl);
  curl_slist_free_all(headers);
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
