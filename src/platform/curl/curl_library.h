// libcurl, loaded on the first connection test rather than when the
// program starts: the window needs neither it nor its TLS libraries until
// the banner is clicked, and most sessions never click it.
#pragma once

// The type-checking macros would stand in for the calls through the table.
#define CURL_DISABLE_TYPECHECK
#include <curl/curl.h>

namespace jeerbox {

#define JEERBOX_CURL_FUNCTIONS(X) \
  X(curl_global_init)             \
  X(curl_easy_init)               \
  X(curl_easy_setopt)             \
  X(curl_easy_perform)            \
  X(curl_easy_getinfo)            \
  X(curl_easy_cleanup)            \
  X(curl_slist_append)            \
  X(curl_slist_free_all)

// The functions the program calls, by their own names.
struct CurlLibrary {
// A name can't take parentheses here: it is the function's own.
// NOLINTNEXTLINE(bugprone-macro-parentheses)
#define JEERBOX_CURL_POINTER(name) decltype(&::name) name = nullptr;
  JEERBOX_CURL_FUNCTIONS(JEERBOX_CURL_POINTER)
#undef JEERBOX_CURL_POINTER
};

// Loaded and globally initialised on the first call; null when libcurl
// isn't installed.
const CurlLibrary* Curl();

}  // namespace jeerbox
