#include "helpers/recording_audio_control.h"

namespace jeerbox::testing {

std::vector<std::string> RecordingAudioControl::Matching(const std::string& prefix) const {
  std::vector<std::string> found;
  for (const std::string& entry : mLog)
    if (entry.compare(0, prefix.size(), prefix) == 0) found.push_back(entry);
  return found;
}

bool RecordingAudioControl::OpenMixer(int32_t windowHandle, int32_t sampleRate, bool flag1, bool flag2) {
  return Call("OpenMixer", "(" + std::to_string(windowHandle) + "," + std::to_string(sampleRate) + "," +
                               (flag1 ? "true" : "false") + "," + (flag2 ? "true" : "false") + ")");
}

std::optional<bool> RecordingAudioControl::MusicCanPause() {
  if (!Call("MusicCanPause")) return std::nullopt;
  return mCanPause;
}

std::optional<bool> RecordingAudioControl::MusicCanResume() {
  if (!Call("MusicCanResume")) return std::nullopt;
  return mCanResume;
}

bool RecordingAudioControl::Call(const std::string& name, const std::string& arguments) {
  mLog.push_back(name + arguments);
  return !mFailAll && mFailing.count(name) == 0;
}

std::vector<std::string> SweepCalls() {
  std::vector<std::string> calls;
  for (int channel = 1; channel <= 32; ++channel) {
    calls.push_back("Channel=" + std::to_string(channel));
    calls.push_back("StopChannel");
  }
  return calls;
}

}  // namespace jeerbox::testing
