// SDL's audio beside the program: the output devices are counted from the
// moment the host is made (in a child process where it can), and the mixer
// opens on a thread of its own when asked, so neither holds up the window.
// Whoever needs an answer waits for it; calls on the mixer thus come in the
// order the program made them.
#pragma once

#include <future>

#include "platform/sdl/sdl_library.h"

namespace jeerbox {

class SdlAudioHost {
 public:
  SdlAudioHost();
  ~SdlAudioHost();
  SdlAudioHost(const SdlAudioHost&) = delete;
  SdlAudioHost& operator=(const SdlAudioHost&) = delete;

  // The output devices SDL sees; 0 where audio can't start. Waits.
  unsigned DeviceCount();
  // Starts opening the mixer, 16-bit stereo at `rate`; returns at once.
  void BeginOpen(int rate);
  // The mixer's functions once it is open, waiting for an open under way;
  // null when it isn't open.
  const SdlLibrary* Mixer();
  // Closes the mixer (after an open under way has ended).
  void Close();

 private:
  std::shared_future<unsigned> mCount;
  std::shared_future<const SdlLibrary*> mOpen;
};

}  // namespace jeerbox
