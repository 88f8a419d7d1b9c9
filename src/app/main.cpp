// jeerbox: the window program. Everything but the choice of platform units
// lies in jeerbox_app.
#include <QApplication>

#include "app/MForms.h"
#include "app/MMain.h"
#include "app/app_services.h"
#include "platform/clipboard.h"
#include "platform/command_line.h"
#include "platform/fonts.h"
#include "platform/internet_curl.h"
#include "platform/message_box.h"
#include "platform/previous_instance.h"
#include "platform/process.h"
#include "platform/shell.h"
#include "platform/silent_audio_control.h"
#include "platform/wave_devices.h"

// Under LeakSanitizer: libdbus, which Qt's X11 platform uses, keeps one
// buffer to the end on purpose. Nothing calls this in a normal build.
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
  // Audio: silent until the mixer library is built in; swap both here.
  jeerbox::SilentAudioControl audioControl;
  jeerbox::FixedWaveDevices waveDevices(0);

  jeerbox::AppServices services;
  services.previousInstance = &instanceLock;
  services.messageBox = &messageBox;
  services.clipboard = &clipboard;
  services.internet = &internet;
  services.shell = &shell;
  services.process = &process;
  services.audioControl = &audioControl;
  services.waveDevices = &waveDevices;
  jeerbox::SetServices(services);

  jeerbox::Main();
  const int result = process.Ended() ? 0 : app.exec();
  jeerbox::ReleaseForms();
  return result;
}
