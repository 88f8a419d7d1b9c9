#include "platform/sdl/sdl_audio_host.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "platform/sdl/sound_presence.h"

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

// How long the program waits for a count before going on silent.
constexpr int kCountTimeoutMs = 5000;

// Threads of this process, from /proc; 0 when it can't be told.
int ThreadCount() {
  FILE* status = std::fopen("/proc/self/status", "re");
  if (status == nullptr) return 0;
  int threads = 0;
  char line[128];
  while (threads == 0 && std::fgets(line, sizeof line, status) != nullptr)
    if (std::sscanf(line, "Threads: %d", &threads) != 1) threads = 0;
  std::fclose(status);
  return threads;
}

// The answer of a counting child, once: reaped, and killed if it hangs.
unsigned AwaitChild(pid_t child, int answer) {
  unsigned count = 0;
  pollfd ready{answer, POLLIN, 0};
  int polled = 0;
  do polled = poll(&ready, 1, kCountTimeoutMs);
  while (polled < 0 && errno == EINTR);
  if (polled <= 0 || read(answer, &count, sizeof count) != static_cast<ssize_t>(sizeof count)) {
    count = 0;
    kill(child, SIGKILL);
  }
  close(answer);
  while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
  return count;
}

// Loading SDL with its sound libraries and probing the sound system takes
// about as long as Qt's own start, and run on a thread beside it, the two
// queue for the dynamic loader's lock and the memory map. A child forked
// while this process has one thread only does it in an address space of its
// own, on the other core, and answers through a pipe; the program never
// loads SDL when there is nothing to play on. With more threads (a fork
// would copy locks they hold), or if the fork fails, a thread counts. A
// host with no sound at all is told without either.
std::shared_future<unsigned> StartCount() {
  if (!MayHaveSoundOutput("", std::getenv)) {
    std::promise<unsigned> none;
    none.set_value(0);
    return none.get_future().share();
  }
  int pipeEnds[2];
  if (ThreadCount() == 1 && pipe2(pipeEnds, O_CLOEXEC) == 0) {
    const pid_t child = fork();
    if (child == 0) {
      close(pipeEnds[0]);
      const unsigned count = CountDevices();
      const ssize_t written = write(pipeEnds[1], &count, sizeof count);
      _exit(written == static_cast<ssize_t>(sizeof count) ? 0 : 1);
    }
    close(pipeEnds[1]);
    if (child > 0) return std::async(std::launch::deferred, AwaitChild, child, pipeEnds[0]).share();
    close(pipeEnds[0]);
  }
  return std::async(std::launch::async, CountDevices).share();
}

}  // namespace

SdlAudioHost::SdlAudioHost() : mCount(StartCount()) {}

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
