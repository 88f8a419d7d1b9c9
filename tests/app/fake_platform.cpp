// The recording fakes' bodies.
#include "fake_platform.h"

#include "app/FJeerbox.h"
#include "app/MForms.h"

namespace jeerbox::testing {

void RecordingMessageBox::MsgBox(const std::string& text, int icon, const std::string& title) {
  shown.push_back({text, icon, title});
  mLog.push_back("message " + text);
}

void RecordingProcess::End() {
  ++mEnds;
  FJeerbox* form = MainForm();
  mLog.push_back(std::string("end") + (form && form->isVisible() ? " (window still up)" : ""));
}

FakePlatform::FakePlatform() : mSaved(Services()) {
  AppServices services;
  services.previousInstance = &previousInstance;
  services.messageBox = &messageBox;
  services.clipboard = &clipboard;
  services.internet = &internet;
  services.shell = &shell;
  services.process = &process;
  services.audioControl = &audioControl;
  services.waveDevices = &waveDevices;
  SetServices(services);
}

FakePlatform::~FakePlatform() { SetServices(mSaved); }

int FindInLog(const EventLog& log, const std::string& prefix) {
  for (size_t i = 0; i < log.size(); ++i) {
    if (log[i].rfind(prefix, 0) == 0) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace jeerbox::testing
