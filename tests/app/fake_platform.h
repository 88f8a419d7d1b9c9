// Fakes for the program flow's platform and for the window's face. Each
// records what was asked of it into one shared log, so tests can check the
// order of steps across units.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/app_services.h"
#include "app/jeerbox_view.h"
#include "helpers/silent_audio_control.h"
#include "platform/clipboard.h"
#include "platform/internet.h"
#include "platform/message_box.h"
#include "platform/process.h"
#include "platform/shell.h"

namespace jeerbox {
class FJeerbox;
}

namespace jeerbox::testing {

using EventLog = std::vector<std::string>;

struct ShownMessage {
  std::string text;
  int icon;
  std::string title;
};

class RecordingMessageBox : public IMessageBox {
 public:
  explicit RecordingMessageBox(EventLog& log) : mLog(log) {}
  void MsgBox(const std::string& text, int icon, const std::string& title) override;
  std::vector<ShownMessage> shown;

 private:
  EventLog& mLog;
};

class RecordingClipboard : public IClipboard {
 public:
  void SetText(const std::string& text) override { copies.push_back(text); }
  std::vector<std::string> copies;
};

struct OpenedDocument {
  void* owner;
  std::string operation, file, parameters, directory;
  int showCommand;
};

class RecordingShell : public IShell {
 public:
  void ShellExecuteA(void* owner, const char* operation, const char* file, const char* parameters,
                     const char* directory, int showCommand) override {
    opened.push_back({owner, operation, file, parameters, directory, showCommand});
  }
  std::vector<OpenedDocument> opened;
};

class RecordingProcess : public IProcess {
 public:
  explicit RecordingProcess(EventLog& log) : mLog(log) {}
  std::string ExecutableDirectory() override { return "C:\\Program Files\\Jeerbox"; }
  std::string CommandLine() override { return commandLine; }
  bool PrevInstance() override { return previousInstance; }
  void End() override;
  bool Ended() const override { return mEnds > 0; }
  int Ends() const { return mEnds; }

  std::string commandLine;
  bool previousInstance = false;

 private:
  EventLog& mLog;
  int mEnds = 0;
};

// The Internet calls of a test host that answers (any status) or doesn't;
// each call is noted with its arguments.
class RecordingInternet : public IInternet {
 public:
  HINTERNET InternetOpenA(const char* agent, uint32_t accessType, const char* proxyName,
                          const char* proxyBypass, uint32_t flags) override;
  HINTERNET InternetOpenUrlA(HINTERNET internet, const char* url, const char* headers, uint32_t headersLength,
                             uint32_t flags, uintptr_t context) override;
  bool InternetCloseHandle(HINTERNET handle) override;

  bool sessionOpens = true;
  bool hostAnswers = true;
  std::vector<std::string> calls;
  int openHandles = 0;

 private:
  int mSession = 0;
  int mRequest = 0;
};

// Logs the calls that mark the audio form's steps: set-up, shutdown, unload.
class LoggingAudioControl : public SilentAudioControl {
 public:
  explicit LoggingAudioControl(EventLog& log) : mLog(log) {}
  bool OpenMixer(int32_t, int32_t, bool, bool) override { return Log("OpenMixer"); }
  bool ResetMixer() override { return Log("ResetMixer"); }
  bool CloseMusic() override { return Log("CloseMusic"); }
  bool CloseMixer() override { return Log("CloseMixer"); }
  bool LoadChannel(const std::string& fileName) override { return Log("LoadChannel " + fileName); }

 private:
  bool Log(const std::string& call) {
    mLog.push_back("audio " + call);
    return true;
  }
  EventLog& mLog;
};

// The window as a toolkit keeps it: a close reaches the form first, and a
// close asked for while one is under way is refused.
class RecordingView : public IJeerboxView {
 public:
  explicit RecordingView(FJeerbox& form) : mForm(form) {}
  void Show() override { visible = true; }
  void SetInsultText(const std::string& text) override { mText = text; }
  std::string InsultText() const override { return mText; }
  void SetCopyEnabled(bool enabled) override { copyEnabled = enabled; }
  void Close() override { CloseWindow(); }
  // What the title bar's close box does.
  bool CloseWindow();

  bool visible = false;
  bool copyEnabled = true;  // as a fresh button is, until the form says otherwise

 private:
  FJeerbox& mForm;
  std::string mText = "Click \"Insult me\" to generate an insult\r\n";
  bool mClosing = false;
};

// A whole platform of fakes, installed as Services() for the object's
// lifetime; the main form's face is a RecordingView.
class FakePlatform {
 public:
  FakePlatform();
  ~FakePlatform();
  FakePlatform(const FakePlatform&) = delete;
  FakePlatform& operator=(const FakePlatform&) = delete;

  EventLog log;
  RecordingMessageBox messageBox{log};
  RecordingClipboard clipboard;
  RecordingInternet internet;
  RecordingShell shell;
  RecordingProcess process{log};
  LoggingAudioControl audioControl{log};
  FixedWaveDevices waveDevices{1};

 private:
  AppServices mSaved;
};

// The main form's face while it is a RecordingView; null otherwise.
RecordingView* MainView();

// Index of the first entry of `log` starting with `prefix`; -1 if none.
int FindInLog(const EventLog& log, const std::string& prefix);

}  // namespace jeerbox::testing
