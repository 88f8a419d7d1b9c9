// Fakes for the window's platform units. Each records what was asked of it
// into one shared log, so tests can check the order of steps across units.
#pragma once

#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "app/app_services.h"
#include "platform/audio_control.h"
#include "platform/clipboard.h"
#include "platform/internet_curl.h"
#include "platform/message_box.h"
#include "platform/previous_instance.h"
#include "platform/process.h"
#include "platform/shell.h"
#include "platform/wave_devices.h"

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
  void SetText(const QString& text) override { copies.push_back(text); }
  std::vector<QString> copies;
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
  void End() override;
  bool Ended() const override { return mEnds > 0; }
  int Ends() const { return mEnds; }

 private:
  EventLog& mLog;
  int mEnds = 0;
};

class FakePreviousInstance : public IPreviousInstance {
 public:
  bool PrevInstance() override { return running; }
  bool running = false;
};

// Logs the calls that mark the audio form's steps: set-up, shutdown, unload.
class LoggingAudioControl : public IAudioControl {
 public:
  explicit LoggingAudioControl(EventLog& log) : mLog(log) {}
  bool OpenMixer(int32_t, int32_t, bool, bool) override { return Log("OpenMixer"); }
  bool ResetMixer() override { return Log("ResetMixer"); }
  bool CloseMusic() override { return Log("CloseMusic"); }
  bool CloseMixer() override { return Log("CloseMixer"); }
  bool LoadMusic(const std::string&) override { return true; }
  bool PlayMusic(bool) override { return true; }
  bool StopMusic() override { return true; }
  bool PauseMusic() override { return true; }
  bool ResumeMusic() override { return true; }
  std::optional<bool> MusicCanPause() override { return true; }
  std::optional<bool> MusicCanResume() override { return true; }
  bool SetChannel(int32_t) override { return true; }
  bool SetChannelPan(int32_t) override { return true; }
  bool LoadChannel(const std::string& fileName) override { return Log("LoadChannel " + fileName); }
  bool PlayChannel(bool) override { return true; }
  bool ClearChannel() override { return true; }
  bool StopChannel() override { return true; }

 private:
  bool Log(const std::string& call) {
    mLog.push_back("audio " + call);
    return true;
  }
  EventLog& mLog;
};

// A whole platform of fakes (the Internet is real libcurl, with short
// time-outs), installed as Services() for the object's lifetime.
class FakePlatform {
 public:
  FakePlatform();
  ~FakePlatform();

  EventLog log;
  RecordingMessageBox messageBox{log};
  RecordingClipboard clipboard;
  CurlInternet internet{2000, 2000};
  RecordingShell shell;
  RecordingProcess process{log};
  FakePreviousInstance previousInstance;
  LoggingAudioControl audioControl{log};
  FixedWaveDevices waveDevices{1};

 private:
  AppServices mSaved;
};

// Index of the first entry of `log` starting with `prefix`; -1 if none.
int FindInLog(const EventLog& log, const std::string& prefix);

}  // namespace jeerbox::testing
