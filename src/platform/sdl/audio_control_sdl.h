// The mixer control on SDL2_mixer's channel API. Channels 1 to 32 of the
// control are the mixer's channels 0 to 31; every call is safe whether or
// not the mixer is open, and a call that can't be done returns false.
// OpenMixer only starts the opening (on the audio host's thread); a call
// that needs the mixer waits until it is open or has failed.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/audio_control.h"
#include "platform/sdl/sdl_audio_host.h"

namespace jeerbox {

class SdlAudioControl : public IAudioControl {
 public:
  static constexpr int kChannels = 32;

  explicit SdlAudioControl(std::shared_ptr<SdlAudioHost> host = std::make_shared<SdlAudioHost>());
  ~SdlAudioControl() override;
  SdlAudioControl(const SdlAudioControl&) = delete;
  SdlAudioControl& operator=(const SdlAudioControl&) = delete;

  // The window handle and the two flags mean nothing here: SDL opens the
  // default output device, in 16-bit stereo. True once the opening has
  // started; whether it succeeded shows in the calls that follow.
  bool OpenMixer(int32_t windowHandle, int32_t sampleRate, bool flag1, bool flag2) override;
  // Stops everything and frees every loaded sound; the mixer stays open.
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

  // Waits for an opening under way.
  bool IsOpen() { return mHost->Mixer() != nullptr; }

 private:
  // The mixer's index of the selected channel, or -1 when none is selected
  // or the mixer is closed.
  int SelectedMixerChannel();
  void FreeChunk(const SdlLibrary& sdl, int index);

  std::shared_ptr<SdlAudioHost> mHost;
  bool mOpening = false;
  int32_t mChannel = 0;
  std::array<Mix_Chunk*, kChannels> mChunks{};
  std::array<int32_t, kChannels> mPans{};
  Mix_Music* mMusic = nullptr;
  // The music's file: SDL_mixer reads it while the music plays.
  std::string mMusicBytes;
};

// Left and right volumes (0 to 255) for a pan from -90 (left) to 90
// (right). The middle keeps both sides at full volume.
void PanVolumes(int32_t pan, uint8_t* left, uint8_t* right);

}  // namespace jeerbox
