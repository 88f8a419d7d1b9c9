// The count of audio output devices, as SDL sees them.
#include <SDL.h>

#include "platform/sdl/audio_sdl.h"

namespace jeerbox {
namespace {

class SdlWaveDevices : public IWaveDevices {
 public:
  // SDL answers -1 when its driver can't list devices but may still open the
  // default one; that counts as one, and a mixer that then fails to open is
  // silent anyway.
  unsigned waveOutGetNumDevs() override {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return 0;
    const int count = SDL_GetNumAudioDevices(0);
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return count < 0 ? 1u : static_cast<unsigned>(count);
  }
};

}  // namespace

std::unique_ptr<IWaveDevices> CreateSdlWaveDevices() { return std::make_unique<SdlWaveDevices>(); }

}  // namespace jeerbox
