// The mixer control on XAudio2: one source voice per channel, playing a
// sound decoded whole by Media Foundation at LoadChannel, panned through
// its output matrix. xaudio2_9.dll is loaded when the mixer opens (mingw
// has no import library for it). Every call is safe in every state; one
// that can't be done returns false.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/audio_control.h"
#include "platform/win32/media_decoder_mf.h"

struct IXAudio2;
struct IXAudio2MasteringVoice;
struct IXAudio2SourceVoice;

namespace jeerbox {

class XAudio2Control : public IAudioControl {
 public:
  static constexpr int kChannels = 32;

  XAudio2Control() = default;
  ~XAudio2Control() override;
  XAudio2Control(const XAudio2Control&) = delete;
  XAudio2Control& operator=(const XAudio2Control&) = delete;

  // The window handle and the two flags mean nothing here: XAudio2 opens
  // the default output device in stereo at `sampleRate`.
  bool OpenMixer(int32_t windowHandle, int32_t sampleRate, bool flag1, bool flag2) override;
  // Stops and frees every sound; the mixer stays open.
  bool ResetMixer() override;
  bool CloseMusic() override;
  bool CloseMixer() override;

  bool LoadMusic(const std::string& fileName) override;
  bool PlayMusic(bool looping) override;
  bool StopMusic() override;
  bool PauseMusic() override;
  bool ResumeMusic() override;
  std::optional<bool> MusicCanPause() override;
  std::optional<bool> MusicCanResume() override;

  bool SetChannel(int32_t channel) override;
  bool SetChannelPan(int32_t pan) override;
  bool LoadChannel(const std::string& fileName) override;
  // The flag means nothing here: a sound plays once.
  bool PlayChannel(bool flag) override;
  bool ClearChannel() override;
  bool StopChannel() override;

  bool IsOpen() const { return mEngine != nullptr; }
  // True while channel 1 to 32 still has sound queued to play.
  bool IsPlaying(int32_t channel) const;

 private:
  struct Slot {
    IXAudio2SourceVoice* voice = nullptr;
    PcmSound sound;
    int32_t pan = 0;
  };
  // Index of the selected channel, or -1 when none is or the mixer is closed.
  int Selected() const;
  bool Load(const std::string& fileName, Slot* slot);
  bool Play(Slot* slot, bool looping);
  static void Silence(Slot* slot);
  static bool Queued(const Slot& slot);

  IXAudio2* mEngine = nullptr;
  IXAudio2MasteringVoice* mMaster = nullptr;
  bool mComStarted = false;
  int32_t mChannel = 0;
  std::array<Slot, kChannels> mSlots;
  Slot mMusic;
  bool mMusicPaused = false;
};

// The output matrix for a pan from -90 (left) to 90 (right), source
// channel by output: the middle keeps both sides at full volume, as the
// other mixers do. `levels` holds channels * 2 values.
void PanMatrix(int32_t pan, int channels, float* levels);

}  // namespace jeerbox
