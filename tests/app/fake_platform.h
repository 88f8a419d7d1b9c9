// A platform of fakes for the program flow, and a recording face for its
// window. What they are asked is noted on the mixer's log, so tests can
// check the order of steps across units.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/app_services.h"
#include "app/jeerbox_view.h"
#include "helpers/recording_audio_control.h"
#include "platform/clipboard.h"
#include "platform/internet.h"
#include "platform/message_box.h"
#include "platform/process.h"
#include "platform/shell.h"

namespace jeerbox::testing {

using EventLog = std::vector<std::string>;

class RecordingView;
RecordingView* MainView();

// Installed as Services() for its lifetime, with a RecordingView as the
// main window's face. The Internet is a test host that answers (any status)
// or doesn't.
class FakePlatform : public IMessageBox, public IClipboard, public IShell, public IProcess, public IInternet {
 public:
  FakePlatform();
  ~FakePlatform() override { SetServices(mSaved); }
  FakePlatform(const FakePlatform&) = delete;
  FakePlatform& operator=(const FakePlatform&) = delete;

  // The mixer's calls, with "message", "show" and "end" where they came.
  const EventLog& Log() const { return audio.Log(); }

  void MsgBox(const std::string& text, int icon, const std::string&) override {
    shown.emplace_back(text, icon);
    audio.Note("message");
  }
  void SetText(const std::string& text) override { copies.push_back(text); }
  void ShellExecuteA(void*, const char*, const char* file, const char*, const char*, int) override {
    opened.emplace_back(file);
  }
  std::string ExecutableDirectory() override { return "C:\\Program Files\\Jeerbox"; }
  std::string CommandLine() override { return commandLine; }
  bool PrevInstance() override { return previousInstance; }
  void End() override;  // noted as "end", or "end (window still up)"
  bool Ended() const override { return ends > 0; }
  HINTERNET InternetOpenA(const char*, uint32_t, const char*, const char*, uint32_t) override {
    openHandles += sessionOpens;
    return sessionOpens ? &mSession : nullptr;
  }
  HINTERNET InternetOpenUrlA(HINTERNET session, const char* url, const char*, uint32_t, uint32_t,
                             uintptr_t) override {
    urls.emplace_back(url);
    const bool answers = hostAnswers && session == &mSession;
    openHandles += answers;
    return answers ? &mRequest : nullptr;
  }
  bool InternetCloseHandle(HINTERNET handle) override {
    openHandles -= handle == &mSession || handle == &mRequest;
    return true;
  }

  RecordingAudioControl audio;
  FixedWaveDevices waveDevices{1};
  std::vector<std::pair<std::string, int>> shown;  // text, icon
  std::vector<std::string> copies, opened, urls;
  std::string commandLine;
  bool previousInstance = false, sessionOpens = true, hostAnswers = true;
  int ends = 0, openHandles = 0;

 private:
  AppServices mSaved = Services();
  int mSession = 0, mRequest = 0;
};

// The window as a toolkit keeps it: a close reaches the form first, and a
// close asked for while one is under way is refused.
class RecordingView : public IJeerboxView {
 public:
  RecordingView(FJeerbox& form, FakePlatform& platform) : mForm(form), mPlatform(platform) {}
  void Show() override {
    visible = true;
    mPlatform.audio.Note("show");
  }
  void SetInsultText(const std::string& text) override { mText = text; }
  std::string InsultText() const override { return mText; }
  void SetCopyEnabled(bool enabled) override { copyEnabled = enabled; }
  void Close() override { CloseWindow(); }
  // What the title bar's close box does.
  bool CloseWindow() {
    if (mClosing) return false;
    mClosing = true;
    const bool goes = mForm.WindowClosing();
    mClosing = false;
    visible = visible && !goes;
    return goes;
  }

  bool visible = false;
  bool copyEnabled = true;  // as a fresh button is, until the form says otherwise

 private:
  FJeerbox& mForm;
  FakePlatform& mPlatform;
  std::string mText = "Click \"Insult me\" to generate an insult\r\n";
  bool mClosing = false;
};

// The main form's face while it is a RecordingView; null otherwise.
inline RecordingView* MainView() {
  FJeerbox* form = MainForm();
  return form ? dynamic_cast<RecordingView*>(form->View()) : nullptr;
}

inline FakePlatform::FakePlatform() {
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

inline void FakePlatform::End() {
  ++ends;
  const RecordingView* view = MainView();
  audio.Note(std::string("end") + (view && view->visible ? " (window still up)" : ""));
}

}  // namespace jeerbox::testing
