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
  const RecordingView* view = MainView();
  mLog.push_back(std::string("end") + (view && view->visible ? " (window still up)" : ""));
}

HINTERNET RecordingInternet::InternetOpenA(const char* agent, uint32_t accessType, const char* proxyName,
                                           const char* proxyBypass, uint32_t flags) {
  calls.push_back("open agent=" + std::string(agent) + " access=" + std::to_string(accessType) +
                  " proxy=" + (proxyName ? "set" : "none") + " bypass=" + (proxyBypass ? "set" : "none") +
                  " flags=" + std::to_string(flags));
  if (!sessionOpens) return nullptr;
  ++openHandles;
  return &mSession;
}

HINTERNET RecordingInternet::InternetOpenUrlA(HINTERNET internet, const char* url, const char* headers,
                                              uint32_t headersLength, uint32_t flags, uintptr_t context) {
  char hex[16];
  std::snprintf(hex, sizeof hex, "%08X", flags);
  calls.push_back(std::string("url ") + url + " headers=" + (headers ? headers : "none") + "/" +
                  std::to_string(headersLength) + " flags=0x" + hex + " context=" + std::to_string(context) +
                  (internet == &mSession ? "" : " (no session)"));
  if (!hostAnswers || internet != &mSession) return nullptr;
  ++openHandles;
  return &mRequest;
}

bool RecordingInternet::InternetCloseHandle(HINTERNET handle) {
  calls.emplace_back(handle == &mSession   ? "close session"
                     : handle == &mRequest ? "close request"
                                           : "close ?");
  --openHandles;
  return true;
}

bool RecordingView::CloseWindow() {
  if (mClosing) return false;
  mClosing = true;
  const bool goes = mForm.WindowClosing();
  mClosing = false;
  if (goes) visible = false;
  return goes;
}

FakePlatform::FakePlatform() : mSaved(Services()) {
  AppServices services;
  services.process = &process;
  services.messageBox = &messageBox;
  services.clipboard = &clipboard;
  services.internet = &internet;
  services.shell = &shell;
  services.audioControl = &audioControl;
  services.waveDevices = &waveDevices;
  services.makeMainView = [](FJeerbox& form) { return std::make_unique<RecordingView>(form); };
  SetServices(services);
}

FakePlatform::~FakePlatform() { SetServices(mSaved); }

RecordingView* MainView() {
  FJeerbox* form = MainForm();
  return form ? dynamic_cast<RecordingView*>(form->View()) : nullptr;
}

int FindInLog(const EventLog& log, const std::string& prefix) {
  for (size_t i = 0; i < log.size(); ++i) {
    if (log[i].rfind(prefix, 0) == 0) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace jeerbox::testing
