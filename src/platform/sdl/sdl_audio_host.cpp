#include "platform/sdl/sdl_audio_host.h"

namespace jeerbox {
namespace {

constexpr int kChannels = 32;
constexpr int kChunkSize = 2048;

// SDL answers -1 when its driver can't list devices but may still open the
// default one; that counts as one, and a mixer that then fails to open is
// silent anyway.
unsigned CountDevices() {
  const SdlLibrary* sdl = SdlCore();
  if (sdl == nullptr) return 0;
  const int count = sdl->SDL_InitSubSystem(SDL_INIT_AUDIO) == 0 ? sdl->SDL_GetNumAudioDevices(0) : 0;
  sdl->SDL_QuitSubSystem(SDL_INIT_AUDIO);
  // SDL keeps per-thread data (its error text) that nothing frees on a
  // thread it did not start.
  sdl->SDL_TLSCleanup();
  if (count == 0) UnloadSdlCore();
  return count < 0 ? 1u : static_cast<unsigned>(count);
}

const SdlLibrary* OpenMixer(int rate) {
  const SdlLibrary* sdl = SdlMixer();
  if (sdl == nullptr || sdl->SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return nullptr;
  sdl->Mix_Init(MIX_INIT_MP3);
  if (sdl->Mix_OpenAudio(rate > 0 ? rate : 44100, AUDIO_S16SYS, 2, kChunkSize) != 0) {
    sdl->Mix_Quit();
    sdl->SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return nullptr;
  }
  sdl->Mix_AllocateChannels(kChannels);
  return sdl;
}

}  // namespace

SdlAudioHost::SdlAudioHost() : mCount(std::async(std::launch::async, CountDevices).share()) {}

SdlAudioHost::~SdlAudioHost() {
  Close();
  mCount.wait();
}

unsigned SdlAudioHost::DeviceCount() { return mCount.get(); }

// SDL's audio subsystem is started from one thread at a time: the open
// waits for the count.
void SdlAudioHost::BeginOpen(int rate) {
  if (mOpen.valid()) return;
  std::shared_future<unsigned> count = mCount;
  mOpen = std::async(std::launch::async, [count, rate] {
            count.wait();
            const SdlLibrary* mixer = OpenMixer(rate);
            if (const SdlLibrary* sdl = SdlCore()) sdl->SDL_TLSCleanup();
            return mixer;
          }).share();
}

const SdlLibrary* SdlAudioHost::Mixer() { return mOpen.valid() ? mOpen.get() : nullptr; }

void SdlAudioHost::Close() {
  const SdlLibrary* sdl = Mixer();
  mOpen = {};
  if (sdl == nullptr) return;
  sdl->Mix_CloseAudio();
  sdl->Mix_Quit();
  sdl->SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

}  // namespace jeerbox
