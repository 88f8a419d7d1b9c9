// SDL2_mixer behind the mixer control. The mixer plays on SDL's audio
// thread; every call here only starts, stops or swaps sounds and returns.
#include "platform/sdl/audio_control_sdl.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>

#include "platform/file_system.h"
#include "platform/sdl/audio_sdl.h"

namespace jeerbox {
namespace {

constexpr int kChunkSize = 2048;

// SDL must not take SIGINT and SIGTERM away from the program: a window
// program never services its quit event, and would then ignore kill.
bool StartSdlAudio() {
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  return SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
}

// SDL_mixer is handed the file's bytes, never its name: it would open a
// named pipe and wait, or take a file of gigabytes. What the guarded read
// refuses is a sound that can't be loaded.
SDL_RWops* ReadMedia(const std::string& fileName, std::string* bytes) {
  if (HostFileSystem().ReadFile(fileName, bytes, kMaxMediaBytes) != FileStatus::kOk) return nullptr;
  return SDL_RWFromConstMem(bytes->data(), static_cast<int>(bytes->size()));
}

}  // namespace

void PanVolumes(int32_t pan, uint8_t* left, uint8_t* right) {
  const int32_t clamped = std::clamp(pan, -90, 90);
  *left = static_cast<uint8_t>(clamped <= 0 ? 255 : 255 * (90 - clamped) / 90);
  *right = static_cast<uint8_t>(clamped >= 0 ? 255 : 255 * (90 + clamped) / 90);
}

SdlAudioControl::~SdlAudioControl() { CloseMixer(); }

bool SdlAudioControl::OpenMixer(int32_t, int32_t sampleRate, bool, bool) {
  if (mOpen) return true;
  if (!StartSdlAudio()) return false;
  Mix_Init(MIX_INIT_MP3);
  if (Mix_OpenAudio(sampleRate > 0 ? sampleRate : 44100, AUDIO_S16SYS, 2, kChunkSize) != 0) {
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  Mix_AllocateChannels(kChannels);
  mOpen = true;
  return true;
}

bool SdlAudioControl::ResetMixer() {
  if (mOpen) Mix_HaltChannel(-1);
  for (int i = 0; i < kChannels; ++i) FreeChunk(i);
  mPans.fill(0);
  CloseMusic();
  return true;
}

bool SdlAudioControl::CloseMusic() {
  if (mMusic != nullptr) {
    Mix_HaltMusic();
    Mix_FreeMusic(mMusic);
    mMusic = nullptr;
  }
  std::string().swap(mMusicBytes);
  return true;
}

bool SdlAudioControl::CloseMixer() {
  ResetMixer();
  if (!mOpen) return true;
  Mix_CloseAudio();
  Mix_Quit();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  mOpen = false;
  return true;
}

bool SdlAudioControl::LoadMusic(const std::string& fileName) {
  if (!mOpen) return false;
  CloseMusic();
  SDL_RWops* source = ReadMedia(fileName, &mMusicBytes);
  if (source != nullptr) mMusic = Mix_LoadMUS_RW(source, 1);
  if (mMusic == nullptr) std::string().swap(mMusicBytes);
  return mMusic != nullptr;
}

bool SdlAudioControl::PlayMusic(bool looping) {
  if (!mOpen || mMusic == nullptr) return false;
  return Mix_PlayMusic(mMusic, looping ? -1 : 0) == 0;
}

bool SdlAudioControl::StopMusic() {
  if (!mOpen) return false;
  Mix_HaltMusic();
  return true;
}

bool SdlAudioControl::PauseMusic() {
  if (!mOpen) return false;
  Mix_PauseMusic();
  return true;
}

bool SdlAudioControl::ResumeMusic() {
  if (!mOpen) return false;
  Mix_ResumeMusic();
  return true;
}

std::optional<bool> SdlAudioControl::MusicCanPause() {
  if (!mOpen) return std::nullopt;
  return Mix_PlayingMusic() != 0 && Mix_PausedMusic() == 0;
}

std::optional<bool> SdlAudioControl::MusicCanResume() {
  if (!mOpen) return std::nullopt;
  return Mix_PausedMusic() != 0;
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
  std::string bytes;
  SDL_RWops* source = ReadMedia(fileName, &bytes);
  Mix_Chunk* chunk = source == nullptr ? nullptr : Mix_LoadWAV_RW(source, 1);
  if (chunk == nullptr) return false;
  FreeChunk(index);
  mChunks[static_cast<size_t>(index)] = chunk;
  return true;
}

// A channel's effects go when what it plays is replaced, so the channel is
// halted before the pan is set, and the pan is set before the sound starts.
bool SdlAudioControl::PlayChannel(bool) {
  const int index = SelectedMixerChannel();
  if (index < 0 || mChunks[static_cast<size_t>(index)] == nullptr) return false;
  Mix_HaltChannel(index);
  uint8_t left = 255, right = 255;
  PanVolumes(mPans[static_cast<size_t>(index)], &left, &right);
  Mix_SetPanning(index, left, right);
  return Mix_PlayChannel(index, mChunks[static_cast<size_t>(index)], 0) == index;
}

bool SdlAudioControl::ClearChannel() {
  const int index = SelectedMixerChannel();
  if (index < 0) return false;
  Mix_HaltChannel(index);
  FreeChunk(index);
  return true;
}

bool SdlAudioControl::StopChannel() {
  const int index = SelectedMixerChannel();
  if (index < 0) return false;
  Mix_HaltChannel(index);
  return true;
}

int SdlAudioControl::SelectedMixerChannel() const { return mOpen && mChannel >= 1 ? mChannel - 1 : -1; }

// Mix_FreeChunk halts any channel still playing the chunk first.
void SdlAudioControl::FreeChunk(int index) {
  Mix_Chunk*& chunk = mChunks[static_cast<size_t>(index)];
  if (chunk == nullptr) return;
  Mix_FreeChunk(chunk);
  chunk = nullptr;
}

std::unique_ptr<IAudioControl> CreateSdlAudioControl() { return std::make_unique<SdlAudioControl>(); }

}  // namespace jeerbox
