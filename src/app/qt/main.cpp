// jeerbox on Linux: the Qt window, with the host units it runs on. The
// program itself lies in jeerbox_flow; this only picks the platform.
#include <QApplication>
#include <memory>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/MMain.h"
#include "app/app_services.h"
#include "app/qt/fonts.h"
#include "app/qt/jeerbox_dialog.h"
#include "platform/curl/internet_curl.h"
#include "platform/qt/clipboard_qt.h"
#include "platform/qt/message_box_qt.h"
#include "platform/qt/process_qt.h"
#include "platform/qt/shell_qt.h"
#include "platform/sdl/audio_sdl.h"

// Under LeakSanitizer: libdbus, which Qt's X11 platform uses, keeps one
// buffer to the end on purpose. Nothing calls this in a normal build.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook name
extern "C" const char* __lsan_default_suppressions() { return "leak:libdbus-1.so\n"; }

int main(int argc, char* argv[]) {
  // Audio counts its devices in a process of its own while Qt comes up, so
  // it starts before any thread or descriptor of ours; with no sound device
  // the audio form stays silent.
  const jeerbox::SdlAudio audio = jeerbox::StartSdlAudio();
  // Before QApplication takes its own options out of argv.
  jeerbox::QtProcess process(argc, argv, "jeerbox");
  QApplication app(argc, argv);
  jeerbox::LoadDialogFont();

  jeerbox::QtMessageBox messageBox;
  jeerbox::QtClipboard clipboard;
  jeerbox::CurlInternet internet;
  jeerbox::QtShell shell;

  jeerbox::AppServices services;
  services.process = &process;
  services.messageBox = &messageBox;
  services.clipboard = &clipboard;
  services.internet = &internet;
  services.shell = &shell;
  services.audioControl = audio.control.get();
  services.waveDevices = audio.devices.get();
  services.makeMainView = [](jeerbox::FJeerbox& form) {
    return std::make_unique<jeerbox::JeerboxDialog>(form);
  };
  jeerbox::SetServices(services);

  jeerbox::Main();
  const int result = process.Ended() ? 0 : app.exec();
  jeerbox::ReleaseForms();
  return result;
}
