#include "platform/curl/curl_library.h"

#include <dlfcn.h>

namespace jeerbox {
namespace {

#define JEERBOX_CURL_RESOLVE(name)                                                 \
  library->name = reinterpret_cast<decltype(library->name)>(dlsym(handle, #name)); \
  ok = ok && library->name != nullptr;

bool Load(CurlLibrary* library) {
  void* handle = dlopen("libcurl.so.4", RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) return false;
  bool ok = true;
  JEERBOX_CURL_FUNCTIONS(JEERBOX_CURL_RESOLVE)
  return ok && library->curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
}

#undef JEERBOX_CURL_RESOLVE

}  // namespace

// The library stays loaded to the end of the process.
const CurlLibrary* Curl() {
  static CurlLibrary library;
  static const bool loaded = Load(&library);
  return loaded ? &library : nullptr;
}

}  // namespace jeerbox
