// The platform behind the window, in one place: main() fills it with the
// real units, tests with fakes that record. The pointers are not owned.
#pragma once

namespace jeerbox {

class IAudioControl;
class IClipboard;
class IInternet;
class IMessageBox;
class IPreviousInstance;
class IProcess;
class IShell;
class IWaveDevices;

struct AppServices {
  IPreviousInstance* previousInstance = nullptr;
  IMessageBox* messageBox = nullptr;
  IClipboard* clipboard = nullptr;
  IInternet* internet = nullptr;
  IShell* shell = nullptr;
  IProcess* process = nullptr;
  IAudioControl* audioControl = nullptr;
  IWaveDevices* waveDevices = nullptr;
};

// Every pointer must be set before Main runs.
AppServices& Services();
void SetServices(const AppServices& services);

}  // namespace jeerbox
