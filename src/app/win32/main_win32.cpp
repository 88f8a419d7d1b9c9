// jeerbox on Windows: the Win32 dialog, with the host units it runs on. The
// program itself lies in jeerbox_flow; this only picks the platform.
#include <memory>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/MMain.h"
#include "app/app_services.h"
#include "app/win32/jeerbox_window.h"
#include "platform/win32/audio_win32.h"
#include "platform/win32/desktop_win32.h"
#include "platform/win32/internet_win32.h"
#include "platform/win32/process_win32.h"
#include "platform/win32/profile_win32.h"
#include "support/CSettings.h"

// After the seams: windows.h would take some of their names for macros.
#include <windows.h>

#include <objbase.h>

namespace {

// Runs the program on the Win32 units; returns the exit code.
int Run(HINSTANCE instance) {
  jeerbox::Win32Process process("Local\\Jeerbox.Instance");
  jeerbox::Win32Profile profile;
  jeerbox::SetProfile(&profile);
  jeerbox::Win32MessageBox messageBox;
  jeerbox::Win32Clipboard clipboard;
  jeerbox::Win32Internet internet;
  jeerbox::Win32Shell shell;
  // With no wave device the audio form stays silent and never opens it.
  const std::unique_ptr<jeerbox::IAudioControl> audioControl = jeerbox::CreateXAudio2Control();
  const std::unique_ptr<jeerbox::IWaveDevices> waveDevices = jeerbox::CreateWinmmWaveDevices();

  jeerbox::AppServices services;
  services.process = &process;
  services.messageBox = &messageBox;
  services.clipboard = &clipboard;
  services.internet = &internet;
  services.shell = &shell;
  services.audioControl = audioControl.get();
  services.waveDevices = waveDevices.get();
  services.makeMainView = [instance](jeerbox::FJeerbox& form) {
    return std::make_unique<jeerbox::JeerboxWindow>(form, instance);
  };
  jeerbox::SetServices(services);

  jeerbox::Main();
  const int result = process.Ended() ? 0 : jeerbox::RunMessageLoop();
  jeerbox::ReleaseForms();
  jeerbox::SetProfile(nullptr);
  return result;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  // The shell's handlers behind ShellExecuteA may be COM objects; COM ends
  // after everything that used it has gone.
  const bool com = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
  const int result = Run(instance);
  if (com) CoUninitialize();
  return result;
}
