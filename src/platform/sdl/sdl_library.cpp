#include "platform/sdl/sdl_library.h"

#include <dlfcn.h>

#include <mutex>

namespace jeerbox {
namespace {

// One table for both libraries, filled under a lock by whichever thread
// asks first. SDL itself is let go when it finds no device; otherwise both
// stay loaded to the end of the process.
struct Loader {
  std::mutex lock;
  SdlLibrary library;
  void* coreHandle = nullptr;
  bool triedCore = false, triedMixer = false;
  bool core = false, mixer = false;
};

Loader& TheLoader() {
  static Loader loader;
  return loader;
}

#define JEERBOX_SDL_RESOLVE(name)                                                  \
  library->name = reinterpret_cast<decltype(library->name)>(dlsym(handle, #name)); \
  ok = ok && library->name != nullptr;

void* LoadCore(SdlLibrary* library) {
  void* handle = dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) return nullptr;
  bool ok = true;
  JEERBOX_SDL_CORE(JEERBOX_SDL_RESOLVE)
  if (ok) return handle;
  dlclose(handle);
  return nullptr;
}

bool LoadMixer(SdlLibrary* library) {
  void* handle = dlopen("libSDL2_mixer-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) return false;
  bool ok = true;
  JEERBOX_SDL_MIXER(JEERBOX_SDL_RESOLVE)
  return ok;
}

#undef JEERBOX_SDL_RESOLVE

}  // namespace

const SdlLibrary* SdlCore() {
  Loader& loader = TheLoader();
  const std::lock_guard<std::mutex> guard(loader.lock);
  if (!loader.triedCore) {
    loader.triedCore = true;
    loader.coreHandle = LoadCore(&loader.library);
    loader.core = loader.coreHandle != nullptr;
    // SDL must not take SIGINT and SIGTERM away from the program: a window
    // program never services SDL's quit event, and would then ignore kill.
    if (loader.core) loader.library.SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  }
  return loader.core ? &loader.library : nullptr;
}

const SdlLibrary* SdlMixer() {
  if (SdlCore() == nullptr) return nullptr;
  Loader& loader = TheLoader();
  const std::lock_guard<std::mutex> guard(loader.lock);
  if (!loader.triedMixer) {
    loader.triedMixer = true;
    loader.mixer = LoadMixer(&loader.library);
  }
  return loader.mixer ? &loader.library : nullptr;
}

void UnloadSdlCore() {
  Loader& loader = TheLoader();
  const std::lock_guard<std::mutex> guard(loader.lock);
  if (loader.mixer || loader.coreHandle == nullptr) return;
  dlclose(loader.coreHandle);
  loader.coreHandle = nullptr;
  loader.library = SdlLibrary();
  loader.triedCore = loader.core = false;
}

}  // namespace jeerbox
