// SDL2_mixer behind the mixer control. The mixer plays on SDL's audio
// thread; every call here only starts, stops or swaps sounds and returns.
#include "platform/sdl/audio_control_sdl.h"

#include <algorithm>

#include "platform/file_system.h"
#include "platform/sdl/audio_sdl.h"

namespace jeerbox {
namespace {

// SDL_mixer is handed the file's bytes, never its name: it would open a
// named pipe and wait, or take a file of gigabytes. What the guarded read
// refuses is a sound that can't be loaded.
SDL_RWops* ReadMedia(const SdlLibrary& sdl, const std::string& fileName, std::string* bytes) {
  if (HostFileSystem().ReadFile(fileName, bytes, kMaxMediaBytes) != FileStatus::kOk) return nullptr;
  return sdl.SDL_RWFromConstMem(bytes->data(), static_cast<int>(bytes->size()));
}

}  // namespace

void PanVolumes(int32_t pan, uint8_t* left, uint8_t* right) {
  const int32_t clamped = std::clamp(pan, -90, 90);
  *left = static_cast<uint8_t>(clamped <= 0 ? 255 : 255 * (90 - clamped) / 90);
  *right = static_cast<uint8_t>(clamped >= 0 ? 255 : 255 * (90 + clamped) / 90);
}

SdlAudioControl::SdlAudioControl(std::shared_ptr<SdlAudioHost> host) : mHost(std::move(host)) {}

SdlAudioControl::~SdlAudioControl() { CloseMixer(); }

bool SdlAudioControl::OpenMixer(int32_t, int32_t sampleRate, bool, bool) {
  if (!mOpening) mHost->BeginOpen(sampleRate);
  mOpening = true;
  return true;
}

bool SdlAudioControl::ResetMixer() {
  if (const SdlLibrary* sdl = mHost->Mixer()) {
    sdl->Mix_HaltChannel(-1);
    for (int i = 0; i < kChannels; ++i) FreeChunk(*sdl, i);
  }
  mPans.fill(0);
  CloseMusic();
  return true;
}

bool SdlAudioControl::CloseMusic() {
  const SdlLibrary* sdl = mHost->Mixer();
  if (mMusic != nullptr && sdl != nullptr) {
    sdl->Mix_HaltMusic();
    sdl->Mix_FreeMusic(mMusic);
    mMusic = nullptr;
  }
  std::string().swap(mMusicBytes);
  return true;
}

bool SdlAudioControl::CloseMixer() {
  ResetMixer();
  mHost->Close();
  mOpening = false;
  return true;
}

bool SdlAudioControl::LoadMusic(const std::string& fileName) {
  const SdlLibrary* sdl = mHost->Mixer();
  if (sdl == nullptr) return false;
  CloseMusic();
  SDL_RWops* source = ReadMedia(*sdl, fileName, &mMusicBytes);
  if (source != nullptr) mMusic = sdl->Mix_LoadMUS_RW(source, 1);
  if (mMusic == nullptr) std::string().swap(mMusicBytes);
  return mMusic != nullptr;
}

bool SdlAudioControl::PlayMusic(bool looping) {
  const SdlLibrary* sdl = mHost->Mixer();
  if (sdl == nullptr || mMusic == nullptr) return false;
  return sdl->Mix_PlayMusic(mMusic, looping ? -1 : 0) == 0;
}

bool SdlAudioControl::StopMusic() {
  const SdlLibrary* sdl = mHost->Mixer();
  if (sdl == nullptr) return false;
  sdl->Mix_HaltMusic();
  return true;
}

bool SdlAudioControl::PauseMusic() {
  const SdlLibrary* sdl = mHost->Mixer();
  if (sdl == nullptr) return false;
  sdl->Mix_PauseMusic();
  return true;
}

bool SdlAudioControl::ResumeMusic() {
  const SdlLibrary* sdl = mHost->Mixer();
  if (sdl == nullptr) return false;
  sdl->Mix_ResumeMusic();
  return true;
}

std::optional<bool> SdlAudioControl::MusicCanPause() {
  const SdlLibrary* sdl = mHost->Mixer();
  if (sdl == nullptr) return std::nullopt;
  return sdl->Mix_PlayingMusic() != 0 && sdl->Mix_PausedMusic() == 0;
}

std::optional<bool> SdlAudioControl::MusicCanResume() {
  const SdlLibrary* sdl = mHost->Mixer();
  if (sdl == nullptr) return std::nullopt;
  return sdl->Mix_PausedMusic() != 0;
}

bool SdlAudioControl::SetChannel(int32_t channel) {
  if (channel < 1 || channel > kChannels) return false;
  mChannel = channel;
  return true;
}

bool SdlAudioControl::SetChannelPan(int32_t pan) {
  if (mChannel < 1) return false;
  mPans[static_cast<size_t>(mChannel - 1)] = std::clamp(pan, -90, 90);
  return true;
}

bool SdlAudioControl::LoadChannel(const std::string& fileName) {
  const int index = SelectedMixerChannel();
  if (index < 0) return false;
  const SdlLibrary& sdl = *mHost->Mixer();
  std::string bytes;
  SDL_RWops* source = ReadMedia(sdl, fileName, &bytes);
  Mix_Chunk* chunk = source == nullptr ? nullptr : sdl.Mix_LoadWAV_RW(source, 1);
  if (chunk == nullptr) return false;
  FreeChunk(sdl, index);
  mChunks[static_cast<size_t>(index)] = chunk;
  return true;
}

// A channel's effects go when what it plays is replaced, so the channel is
// halted before the pan is set, and the pan is set before the sound starts.
bool SdlAudioControl::PlayChannel(bool) {
  const int index = SelectedMixerChannel();
  if (index < 0 || mChunks[static_cast<size_t>(index)] == nullptr) return false;
  const SdlLibrary& sdl = *mHost->Mixer();
  sdl.Mix_HaltChannel(index);
  uint8_t left = 255, right = 255;
  PanVolumes(mPans[static_cast<size_t>(index)], &left, &right);
  sdl.Mix_SetPanning(index, left, right);
  return sdl.Mix_PlayChannelTimed(index, mChunks[static_cast<size_t>(index)], 0, -1) == index;
}

bool SdlAudioControl::ClearChannel() {
  const int index = SelectedMixerChannel();
  if (index < 0) return false;
  const SdlLibrary& sdl = *mHost->Mixer();
  sdl.Mix_HaltChannel(index);
  FreeChunk(sdl, index);
  return true;
}

bool SdlAudioControl::StopChannel() {
  const int index = SelectedMixerChannel();
  if (index < 0) return false;
  mHost->Mixer()->Mix_HaltChannel(index);
  return true;
}

int SdlAudioControl::SelectedMixerChannel() { return mChannel >= 1 && IsOpen() ? mChannel - 1 : -1; }

// Mix_FreeChunk halts any channel still playing the chunk first.
void SdlAudioControl::FreeChunk(const SdlLibrary& sdl, int index) {
  Mix_Chunk*& chunk = mChunks[static_cast<size_t>(index)];
  if (chunk == nullptr) return;
  sdl.Mix_FreeChunk(chunk);
  chunk = nullptr;
}

namespace {

class SdlWaveDevices : public IWaveDevices {
 public:
  explicit SdlWaveDevices(std::shared_ptr<SdlAudioHost> host) : mHost(std::move(host)) {}
  unsigned waveOutGetNumDevs() override { return mHost->DeviceCount(); }

 private:
  std::shared_ptr<SdlAudioHost> mHost;
};

}  // namespace

SdlAudio StartSdlAudio() {
  auto host = std::make_shared<SdlAudioHost>();
  return {std::make_unique<SdlAudioControl>(host), std::make_unique<SdlWaveDevices>(host)};
}

}  // namespace jeerbox
