// Whether this host could have any sound output at all, told from a few
// files and variables, without loading a sound library.
#pragma once

#include <functional>
#include <string>

namespace jeerbox {

// Reads an environment variable: null when unset.
using EnvLookup = std::function<const char*(const char*)>;

// False only when no audio driver SDL may use has anything to reach: no
// driver chosen by SDL_AUDIODRIVER, no ALSA playback device, no sound
// server's socket or address, no sound server that a client would start,
// no ALSA or PulseAudio set-up of one's own that could point elsewhere.
// Loading SDL and its sound libraries to find that out costs about as much
// as the window's own start. `root` is put in front of every path (tests).
bool MayHaveSoundOutput(const std::string& root, const EnvLookup& env);

}  // namespace jeerbox
