// Start and end of the program.
#include "app/MMain.h"

#include <memory>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/app_services.h"
#include "platform/message_box.h"
#include "platform/process.h"
#include "sound/FDMC.h"
#include "support/MSimpleIO.h"
#include "support/failure.h"
#include "support/globals.h"

namespace jeerbox {
namespace {

// The audio form outlives gFDMC's release: it stays loaded until the walk
// over loaded forms unloads it.
std::unique_ptr<FDMC>& AudioForm() {
  static std::unique_ptr<FDMC> form;
  return form;
}

void LoadAudioForm() {
  AudioForm() = std::make_unique<FDMC>(*Services().audioControl, *Services().waveDevices);
  gFDMC = AudioForm().get();
  LoadForm("FDMC", [] {
    if (!AudioForm()) return;
    AudioForm()->Form_Unload();
    if (gFDMC == AudioForm().get()) gFDMC = nullptr;
    AudioForm().reset();
  });
}

void StartProgram() {
  AppServices& services = Services();
  gAppPath = services.process->ExecutableDirectory();
  gAllowMarkedText = true;
  if (services.process->PrevInstance()) {
    services.messageBox->MsgBox(PreviousInstanceText(), kIconExclamation, kAppTitle);
    services.process->End();
    return;
  }
  if (!Trim(services.process->CommandLine()).empty()) {
    services.messageBox->MsgBox("Invalid command line ignored", kIconExclamation, kAppTitle);
  }
  IgnoringFailure([] {
    if (!gFDMC) LoadAudioForm();
    gFDMC->Setup();
  });
  if (!MainForm()) LoadMainForm(std::make_unique<FJeerbox>(BuiltInDeployment(), ShutdownApp));
  ShowMainForm();
}

}  // namespace

std::string PreviousInstanceText() {
  const std::string t = kAppTitle;
  return "There is another copy of " + t + " (or " + t + " Configuration) currently running" + "\r\r" +
         "If you have just closed " + t + " " +
         "then you may need to wait for a few seconds before starting again";
}

// Audio is decoration: a setup that fails leaves the program silent. Should
// the window itself fail to come up, there is nothing to go on with, and
// the process ends rather than wait in an event loop with no window.
void Main() {
  try {
    StartProgram();
  } catch (...) {
    IgnoringFailure([] { Services().process->End(); });
  }
}

void ShutdownApp() {
  IgnoringFailure([] {
    if (gFDMC) gFDMC->Shutdown();
  });
  gFDMC = nullptr;
  IgnoringFailure([] {
    for (FormId id : LoadedForms()) {
      const std::string name = FormName(id);
      if (name != "FJeerbox" && name != "FWait") UnloadForm(id);
    }
  });
  IgnoringFailure([] {
    if (FJeerbox* form = MainForm()) form->Unload();
  });
  Services().process->End();
}

}  // namespace jeerbox
