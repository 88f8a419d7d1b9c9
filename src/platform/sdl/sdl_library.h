// SDL2 and SDL2_mixer, loaded when audio is first wanted rather than when
// the program starts: a machine without a sound device never maps the
// mixer and its decoders, and the window doesn't wait for them.
#pragma once

#include <SDL.h>
#include <SDL_mixer.h>

namespace jeerbox {

#define JEERBOX_SDL_CORE(X) \
  X(SDL_SetHint)            \
  X(SDL_InitSubSystem)      \
  X(SDL_QuitSubSystem)      \
  X(SDL_GetNumAudioDevices) \
  X(SDL_RWFromConstMem)     \
  X(SDL_TLSCleanup)

#define JEERBOX_SDL_MIXER(X) \
  X(Mix_Init)                \
  X(Mix_Quit)                \
  X(Mix_OpenAudio)           \
  X(Mix_CloseAudio)          \
  X(Mix_AllocateChannels)    \
  X(Mix_LoadWAV_RW)          \
  X(Mix_FreeChunk)           \
  X(Mix_HaltChannel)         \
  X(Mix_SetPanning)          \
  X(Mix_PlayChannelTimed)    \
  X(Mix_LoadMUS_RW)          \
  X(Mix_FreeMusic)           \
  X(Mix_PlayMusic)           \
  X(Mix_HaltMusic)           \
  X(Mix_PauseMusic)          \
  X(Mix_ResumeMusic)         \
  X(Mix_PlayingMusic)        \
  X(Mix_PausedMusic)

// The functions the program calls, by their own names.
struct SdlLibrary {
// A name can't take parentheses here: it is the function's own.
// NOLINTNEXTLINE(bugprone-macro-parentheses)
#define JEERBOX_SDL_POINTER(name) decltype(&::name) name = nullptr;
  JEERBOX_SDL_CORE(JEERBOX_SDL_POINTER)
  JEERBOX_SDL_MIXER(JEERBOX_SDL_POINTER)
#undef JEERBOX_SDL_POINTER
};

// SDL's core, loaded on the first call; null when it isn't installed.
const SdlLibrary* SdlCore();
// The core and the mixer; null when either is missing.
const SdlLibrary* SdlMixer();
// Gives the core back while the mixer was never loaded (a machine with no
// sound device has no use for it); a later SdlCore() loads it again.
void UnloadSdlCore();

}  // namespace jeerbox
