// A mixer control that writes down every call with its arguments, so tests
// can compare the orders of calls; any call can be made to fail. And a
// fixed count of wave devices.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/audio_control.h"
#include "platform/wave_devices.h"

namespace jeerbox::testing {

class RecordingAudioControl : public IAudioControl {
 public:
  // Entries read "ResetMixer", "OpenMixer(0,44100,false,false)",
  // "Channel=3", "ChannelPan=-90", "LoadChannel(C:\app\x.wav)" and so on.
  const std::vector<std::string>& Log() const { return mLog; }
  void ClearLog() { mLog.clear(); }
  // Entries of the log that start with `prefix`.
  std::vector<std::string> Matching(const std::string& prefix) const {
    std::vector<std::string> found;
    for (const std::string& entry : mLog)
      if (entry.compare(0, prefix.size(), prefix) == 0) found.push_back(entry);
    return found;
  }
  // An entry of the test's own, so that other events share the timeline.
  void Note(const std::string& event) { mLog.push_back(event); }

  // A failing call is still logged; it returns false (or no value).
  void Fail(const std::string& name) { mFailing.insert(name); }
  void FailEverything() { mFailAll = true; }
  void SetMusicCanPause(bool value) { mCanPause = value; }
  void SetMusicCanResume(bool value) { mCanResume = value; }

  bool OpenMixer(int32_t windowHandle, int32_t sampleRate, bool flag1, bool flag2) override {
    return Call("OpenMixer", "(" + std::to_string(windowHandle) + "," + std::to_string(sampleRate) + "," +
                                 (flag1 ? "true" : "false") + "," + (flag2 ? "true" : "false") + ")");
  }
  bool ResetMixer() override { return Call("ResetMixer"); }
  bool CloseMusic() override { return Call("CloseMusic"); }
  bool CloseMixer() override { return Call("CloseMixer"); }
  bool LoadMusic(const std::string& fileName) override { return Call("LoadMusic", "(" + fileName + ")"); }
  bool PlayMusic(bool looping) override { return Call("PlayMusic", looping ? "(true)" : "(false)"); }
  bool StopMusic() override { return Call("StopMusic"); }
  bool PauseMusic() override { return Call("PauseMusic"); }
  bool ResumeMusic() override { return Call("ResumeMusic"); }
  std::optional<bool> MusicCanPause() override {
    return Call("MusicCanPause") ? std::optional(mCanPause) : std::nullopt;
  }
  std::optional<bool> MusicCanResume() override {
    return Call("MusicCanResume") ? std::optional(mCanResume) : std::nullopt;
  }
  bool SetChannel(int32_t channel) override { return Call("Channel", "=" + std::to_string(channel)); }
  bool SetChannelPan(int32_t pan) override { return Call("ChannelPan", "=" + std::to_string(pan)); }
  bool LoadChannel(const std::string& fileName) override { return Call("LoadChannel", "(" + fileName + ")"); }
  bool PlayChannel(bool flag) override { return Call("PlayChannel", flag ? "(true)" : "(false)"); }
  bool ClearChannel() override { return Call("ClearChannel"); }
  bool StopChannel() override { return Call("StopChannel"); }

 private:
  bool Call(const std::string& name, const std::string& arguments = "") {
    mLog.push_back(name + arguments);
    return !mFailAll && mFailing.count(name) == 0;
  }

  std::vector<std::string> mLog;
  std::set<std::string> mFailing;
  bool mFailAll = false;
  bool mCanPause = true;
  bool mCanResume = true;
};

// The calls of one stop sweep over channels 1 to 32.
inline std::vector<std::string> SweepCalls() {
  std::vector<std::string> calls;
  for (int channel = 1; channel <= 32; ++channel) {
    calls.push_back("Channel=" + std::to_string(channel));
    calls.emplace_back("StopChannel");
  }
  return calls;
}

}  // namespace jeerbox::testing

namespace jeerbox {

class FixedWaveDevices : public IWaveDevices {
 public:
  explicit FixedWaveDevices(unsigned count) : mCount(count) {}
  unsigned waveOutGetNumDevs() override { return mCount; }

 private:
  unsigned mCount;
};

}  // namespace jeerbox
