// The fakes' bodies.
#include "fake_platform.h"

#include "app/FJeerbox.h"
#include "app/MForms.h"

namespace jeerbox::testing {

FakePlatform::FakePlatform() : mSaved(Services()) {
  AppServices services;
  services.process = this;
  services.messageBox = this;
  services.clipboard = this;
  services.internet = this;
  services.shell = this;
  services.audioControl = &audio;
  services.waveDevices = &waveDevices;
  services.makeMainView = [this](FJeerbox& form) { return std::make_unique<RecordingView>(form, *this); };
  SetServices(services);
}

FakePlatform::~FakePlatform() { SetServices(mSaved); }

EventLog FakePlatform::Log() const {
  EventLog merged;
  size_t note = 0;
  for (size_t i = 0; i <= audio.Log().size(); ++i) {
    for (; note < mNotes.size() && mNotes[note].first == i; ++note) merged.push_back(mNotes[note].second);
    if (i < audio.Log().size()) merged.push_back(audio.Log()[i]);
  }
  return merged;
}

void FakePlatform::MsgBox(const std::string& text, int icon, const std::string&) {
  shown.emplace_back(text, icon);
  Note("message");
}

void FakePlatform::End() {
  ++ends;
  const RecordingView* view = MainView();
  Note(std::string("end") + (view && view->visible ? " (window still up)" : ""));
}

HINTERNET FakePlatform::InternetOpenA(const char*, uint32_t, const char*, const char*, uint32_t) {
  if (!sessionOpens) return nullptr;
  ++openHandles;
  return &mSession;
}

HINTERNET FakePlatform::InternetOpenUrlA(HINTERNET session, const char* url, const char*, uint32_t, uint32_t,
                                         uintptr_t) {
  urls.emplace_back(url);
  if (!hostAnswers || session != &mSession) return nullptr;
  ++openHandles;
  return &mRequest;
}

bool FakePlatform::InternetCloseHandle(HINTERNET handle) {
  openHandles -= handle == &mSession || handle == &mRequest ? 1 : 0;
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

RecordingView* MainView() {
  FJeerbox* form = MainForm();
  return form ? dynamic_cast<RecordingView*>(form->View()) : nullptr;
}

}  // namespace jeerbox::testing
