// The look for sound before SDL is loaded: each way a host can have sound
// output is enough on its own, and what only looks like one isn't.
#include "platform/sdl/sound_presence.h"

#include <gtest/gtest.h>

#include <map>

#include "helpers/temp_dir.h"

namespace jeerbox {
namespace {

TEST(SoundPresence, AnyOneSourceOfSoundIsEnough) {
  struct Case {
    const char* file;  // made under the root, "" for none
    const char* contents;
    std::map<std::string, std::string> env;
    bool may;
  };
  const std::map<std::string, std::string> user = {
      {"HOME", "/home/u"}, {"XDG_RUNTIME_DIR", "/run/user/1"}, {"PATH", "/bin:/usr/bin"}};
  const Case cases[] = {
      {"", "", user, false},
      {"dev/snd/controlC0", "", user, false},
      {"dev/snd/pcmC0D0c", "", user, false},  // capture only
      {"dev/snd/pcmC0D0p", "", user, true},
      {"dev/snd/pcmC1D3p", "", user, true},
      {"run/user/1/pulse/native", "", user, true},
      {"run/user/1/pipewire-0", "", user, true},
      {"run/pulse/native", "", user, true},
      {"run/user/1/pulse/pid", "", user, false},
      {"usr/bin/pulseaudio", "", user, true},  // its clients start it
      {"opt/bin/pulseaudio", "", user, false},
      {"etc/asound.conf", "", user, true},
      {"home/u/.asoundrc", "", user, true},
      {"home/u/.config/alsa/asoundrc", "", user, true},
      {"etc/pulse/client.conf", "; default-server =\nautospawn = yes\n", user, false},
      {"etc/pulse/client.conf", "  default-server = tcp:box\n", user, true},
      {"etc/pulse/client.conf.d/01-net.conf", "default-server = tcp:box\n", user, true},
      {"home/u/.config/pulse/client.conf", "default-server = unix:/s\n", user, true},
      {"", "", {{"SDL_AUDIODRIVER", "disk"}}, true},
      {"", "", {{"SDL_AUDIODRIVER", ""}}, false},
      {"", "", {{"PULSE_SERVER", "tcp:box"}}, true},
      {"", "", {{"PIPEWIRE_REMOTE", "pw"}}, true},
      {"", "", {{"ALSA_CONFIG_PATH", "/a.conf"}}, true},
      {"", "", {}, false},  // no HOME nor runtime directory
  };
  for (const Case& c : cases) {
    testing::TempDir root;
    if (*c.file != '\0') root.Write(c.file, c.contents);
    const auto env = [&](const char* name) -> const char* {
      const auto found = c.env.find(name);
      return found == c.env.end() ? nullptr : found->second.c_str();
    };
    EXPECT_EQ(MayHaveSoundOutput(root.Path(), env), c.may) << c.file << " " << c.contents;
  }
}

}  // namespace
}  // namespace jeerbox
