// The platform the program flow runs on, in one place: main() fills it with
// the host's units, tests with fakes that record. Pointers are not owned.
#pragma once

#include <functional>
#include <memory>

namespace jeerbox {

class FJeerbox;
class IAudioControl;
class IClipboard;
class IInternet;
class IJeerboxView;
class IMessageBox;
class IProcess;
class IShell;
class IWaveDevices;

struct AppServices {
  IProcess* process = nullptr;
  IMessageBox* messageBox = nullptr;
  IClipboard* clipboard = nullptr;
  IInternet* internet = nullptr;
  IShell* shell = nullptr;
  IAudioControl* audioControl = nullptr;
  IWaveDevices* waveDevices = nullptr;
  // Makes the main window's face for the form, which keeps it.
  std::function<std::unique_ptr<IJeerboxView>(FJeerbox&)> makeMainView;
};

// Everything must be set before Main runs.
AppServices& Services();
void SetServices(const AppServices& services);

}  // namespace jeerbox
