// The cheap look for sound hardware and sound servers.
#include "platform/sdl/sound_presence.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <vector>

namespace jeerbox {
namespace {

bool Exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

std::string Var(const EnvLookup& env, const char* name) {
  const char* value = env(name);
  return value == nullptr ? std::string() : std::string(value);
}

std::vector<std::string> Entries(const std::string& path) {
  std::vector<std::string> names;
  if (DIR* dir = opendir(path.c_str())) {
    while (const dirent* entry = readdir(dir)) names.emplace_back(entry->d_name);
    closedir(dir);
  }
  return names;
}

// An ALSA playback device: /dev/snd/pcmC<card>D<device>p.
bool HasPlaybackDevice(const std::string& snd) {
  const std::vector<std::string> names = Entries(snd);
  return std::any_of(names.begin(), names.end(), [](const std::string& name) {
    return name.rfind("pcmC", 0) == 0 && name.back() == 'p';
  });
}

// A client.conf that names a server, which may be on another machine.
bool NamesPulseServer(const std::string& conf) {
  std::ifstream in(conf);
  for (std::string line; std::getline(in, line);) {
    const size_t start = line.find_first_not_of(" \t");
    if (start != std::string::npos && line.compare(start, 14, "default-server") == 0) return true;
  }
  return false;
}

bool InPath(const std::string& root, const std::string& path, const char* program) {
  for (size_t start = 0; start <= path.size();) {
    const size_t end = std::min(path.find(':', start), path.size());
    if (end > start && Exists(root + path.substr(start, end - start) + "/" + program)) return true;
    start = end + 1;
  }
  return false;
}

}  // namespace

bool MayHaveSoundOutput(const std::string& root, const EnvLookup& env) {
  for (const char* chosen :
       {"SDL_AUDIODRIVER", "SDL_AUDIO_DRIVER", "PULSE_SERVER", "PIPEWIRE_REMOTE", "ALSA_CONFIG_PATH"})
    if (!Var(env, chosen).empty()) return true;
  if (HasPlaybackDevice(root + "/dev/snd")) return true;

  const std::string runtime = Var(env, "XDG_RUNTIME_DIR");
  const std::string home = Var(env, "HOME");
  std::string config = Var(env, "XDG_CONFIG_HOME");
  if (config.empty() && !home.empty()) config = home + "/.config";
  std::vector<std::string> maybe = {"/run/pulse/native", "/etc/asound.conf"};
  if (!runtime.empty()) maybe.insert(maybe.end(), {runtime + "/pulse/native", runtime + "/pipewire-0"});
  if (!home.empty()) maybe.push_back(home + "/.asoundrc");
  if (!config.empty()) maybe.push_back(config + "/alsa/asoundrc");
  for (const std::string& path : maybe)
    if (Exists(root + path)) return true;

  std::vector<std::string> clientConfs = {root + "/etc/pulse/client.conf"};
  for (const std::string& name : Entries(root + "/etc/pulse/client.conf.d"))
    clientConfs.push_back(root + "/etc/pulse/client.conf.d/" + name);
  if (!config.empty()) clientConfs.push_back(root + config + "/pulse/client.conf");
  if (std::any_of(clientConfs.begin(), clientConfs.end(), NamesPulseServer)) return true;
  // PulseAudio's client starts the server when none runs.
  return InPath(root, Var(env, "PATH"), "pulseaudio");
}

}  // namespace jeerbox
