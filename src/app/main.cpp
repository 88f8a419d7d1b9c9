// jeerbox: the window program. Everything but the choice of platform units
// lies in jeerbox_app.
#include <QApplication>
#include <memory>

#include "app/MForms.h"
#include "app/MMain.h"
#include "app/app_services.h"
#include "platform/audio_sdl.h"
#include "platform/clipboard.h"
#include "platform/command_line.h"
#include "platform/fonts.h"
#include "platform/internet_curl.h"
#include "platform/message_box.h"
#include "platform/previous_instance.h"
#include "platform/process.h"
#include "platform/shell.h"

// Under LeakSanitizer: libdbus, which Qt's X11 platform uses, keeps one
// buffer to the end on purpose. Nothing calls this in a normal build.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook name
extern "C" const char* __lsan_default_suppressions() { return "leak:libdbus-1.so\n"; }

int main(int argc, char* argv[]) {
  // Before QApplication takes its own options out of argv.
  jeerbox::SetCommandLine(argc, argv);
  QApplication app(argc, argv);
  jeerbox::LoadDialogFont();

  jeerbox::LocalSocketInstanceLock instanceLock("jeerbox");
  jeerbox::QtMessageBox messageBox;
  jeerbox::QtClipboard clipboard;
  jeerbox::CurlInternet internet;
  jeerbox::QtShell shell;
  jeerbox::QtProcess process;
  // Audio on SDL2_mixer; with no sound device the audio form stays silent.
  // (jeerbox::SilentAudioControl and FixedWaveDevices(0) are the stand-ins.)
  const std::unique_ptr<jeerbox::IAudioControl> audioControl = jeerbox::CreateSdlAudioControl();
  const std::unique_ptr<jeerbox::IWaveDevices> waveDevices = jeerbox::CreateSdlWaveDevices();

  jeerbox::AppServices services;
  services.previousInstance = &instanceLock;
  services.messageBox = &messageBox;
  services.clipboard = &clipboard;
  services.internet = &internet;
  services.shell = &shell;
  services.process = &process;
  services.audioControl = audioControl.get();
  services.waveDevices = waveDevices.get();
  jeerbox::SetServices(services);

  jeerbox::Main();
  const int result = process.Ended() ? 0 : app.exec();
  jeerbox::ReleaseForms();
  return result;
}
