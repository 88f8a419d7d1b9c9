// XAudio2 behind the mixer control. XAudio2 mixes on its own thread; every
// call here only starts, stops or swaps voices and returns.
#include "platform/win32/audio_control_xaudio2.h"

#include <windows.h>

#include <mfapi.h>
#include <mmsystem.h>
#include <xaudio2.h>

#include <algorithm>
#include <memory>

#include "platform/win32/audio_win32.h"
#include "platform/win32/wide_text.h"

namespace jeerbox {
namespace {

using CreateEngine = HRESULT(WINAPI*)(IXAudio2**, UINT32, XAUDIO2_PROCESSOR);

// Loaded once and kept: XAudio2's threads may outlive an engine's release.
CreateEngine XAudio2CreateFunction() {
  static const CreateEngine create = [] {
    HMODULE library = LoadLibraryW(L"xaudio2_9.dll");
    return library ? reinterpret_cast<CreateEngine>(
                         reinterpret_cast<void*>(GetProcAddress(library, "XAudio2Create")))
                   : nullptr;
  }();
  return create;
}

class WinmmWaveDevices : public IWaveDevices {
 public:
  unsigned waveOutGetNumDevs() override { return ::waveOutGetNumDevs(); }
};

}  // namespace

void PanMatrix(int32_t pan, int channels, float* levels) {
  const int32_t clamped = std::clamp(pan, -90, 90);
  const float left = clamped <= 0 ? 1.0f : static_cast<float>(90 - clamped) / 90.0f;
  const float right = clamped >= 0 ? 1.0f : static_cast<float>(90 + clamped) / 90.0f;
  // levels[channels * output + source]
  if (channels == 1) {
    levels[0] = left;
    levels[1] = right;
  } else {
    levels[0] = left;
    levels[1] = 0.0f;
    levels[2] = 0.0f;
    levels[3] = right;
  }
}

XAudio2Control::~XAudio2Control() { CloseMixer(); }

bool XAudio2Control::OpenMixer(int32_t, int32_t sampleRate, bool, bool) {
  if (IsOpen()) return true;
  const CreateEngine create = XAudio2CreateFunction();
  if (create == nullptr) return false;
  // COM for Media Foundation; a thread that has it already keeps its own.
  const HRESULT com = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  mComStarted = SUCCEEDED(com);
  IXAudio2* engine = nullptr;
  if (FAILED(create(&engine, 0, XAUDIO2_DEFAULT_PROCESSOR)) ||
      FAILED(engine->CreateMasteringVoice(&mMaster, 2, sampleRate > 0 ? sampleRate : 44100, 0, nullptr,
                                          nullptr, AudioCategory_GameEffects)) ||
      FAILED(MFStartup(MF_VERSION, MFSTARTUP_LITE))) {
    if (mMaster) mMaster->DestroyVoice();
    mMaster = nullptr;
    if (engine) engine->Release();
    if (mComStarted) CoUninitialize();
    mComStarted = false;
    return false;
  }
  mEngine = engine;
  return true;
}

bool XAudio2Control::ResetMixer() {
  for (Slot& slot : mSlots) {
    Silence(&slot);
    slot.sound = PcmSound();
    slot.pan = 0;
  }
  CloseMusic();
  return true;
}

bool XAudio2Control::CloseMusic() {
  Silence(&mMusic);
  mMusic.sound = PcmSound();
  mMusicPaused = false;
  return true;
}

bool XAudio2Control::CloseMixer() {
  ResetMixer();
  if (!IsOpen()) return true;
  mMaster->DestroyVoice();
  mMaster = nullptr;
  mEngine->Release();
  mEngine = nullptr;
  MFShutdown();
  if (mComStarted) CoUninitialize();
  mComStarted = false;
  return true;
}

bool XAudio2Control::LoadMusic(const std::string& fileName) {
  if (!IsOpen()) return false;
  CloseMusic();
  return Load(fileName, &mMusic);
}

bool XAudio2Control::PlayMusic(bool looping) {
  if (!IsOpen()) return false;
  mMusicPaused = false;
  return Play(&mMusic, looping);
}

bool XAudio2Control::StopMusic() {
  if (!IsOpen()) return false;
  Silence(&mMusic);
  mMusicPaused = false;
  return true;
}

bool XAudio2Control::PauseMusic() {
  if (!IsOpen()) return false;
  if (Queued(mMusic) && !mMusicPaused && SUCCEEDED(mMusic.voice->Stop(0))) mMusicPaused = true;
  return true;
}

bool XAudio2Control::ResumeMusic() {
  if (!IsOpen()) return false;
  if (mMusicPaused && mMusic.voice && SUCCEEDED(mMusic.voice->Start(0))) mMusicPaused = false;
  return true;
}

std::optional<bool> XAudio2Control::MusicCanPause() {
  if (!IsOpen()) return std::nullopt;
  return Queued(mMusic) && !mMusicPaused;
}

std::optional<bool> XAudio2Control::MusicCanResume() {
  if (!IsOpen()) return std::nullopt;
  return mMusicPaused;
}

bool XAudio2Control::SetChannel(int32_t channel) {
  if (channel < 1 || channel > kChannels) return false;
  mChannel = channel;
  return true;
}

bool XAudio2Control::SetChannelPan(int32_t pan) {
  if (mChannel < 1) return false;
  mSlots[static_cast<size_t>(mChannel - 1)].pan = std::clamp(pan, -90, 90);
  return true;
}

bool XAudio2Control::LoadChannel(const std::string& fileName) {
  const int index = Selected();
  return index >= 0 && Load(fileName, &mSlots[static_cast<size_t>(index)]);
}

bool XAudio2Control::PlayChannel(bool) {
  const int index = Selected();
  return index >= 0 && Play(&mSlots[static_cast<size_t>(index)], false);
}

bool XAudio2Control::ClearChannel() {
  const int index = Selected();
  if (index < 0) return false;
  Silence(&mSlots[static_cast<size_t>(index)]);
  mSlots[static_cast<size_t>(index)].sound = PcmSound();
  return true;
}

bool XAudio2Control::StopChannel() {
  const int index = Selected();
  if (index < 0) return false;
  Silence(&mSlots[static_cast<size_t>(index)]);
  return true;
}

bool XAudio2Control::IsPlaying(int32_t channel) const {
  return channel >= 1 && channel <= kChannels && Queued(mSlots[static_cast<size_t>(channel - 1)]);
}

int XAudio2Control::Selected() const { return IsOpen() && mChannel >= 1 ? mChannel - 1 : -1; }

// A file that doesn't decode leaves the slot as it was.
bool XAudio2Control::Load(const std::string& fileName, Slot* slot) {
  PcmSound sound;
  if (!DecodeToPcm(WideFromAnsiPath(fileName), &sound)) return false;
  Silence(slot);  // the old voice may still read the old samples
  slot->sound = std::move(sound);
  return true;
}

// A fresh voice each time: whatever played on the slot stops, and the pan
// set for it applies from the first sample.
bool XAudio2Control::Play(Slot* slot, bool looping) {
  if (slot->sound.samples.empty()) return false;
  Silence(slot);
  const PcmSound& sound = slot->sound;
  WAVEFORMATEX format{};
  format.wFormatTag = WAVE_FORMAT_PCM;
  format.nChannels = sound.channels;
  format.nSamplesPerSec = sound.sampleRate;
  format.wBitsPerSample = sound.bitsPerSample;
  format.nBlockAlign = static_cast<WORD>(sound.channels * sound.bitsPerSample / 8);
  format.nAvgBytesPerSec = sound.sampleRate * format.nBlockAlign;
  if (FAILED(mEngine->CreateSourceVoice(&slot->voice, &format))) {
    slot->voice = nullptr;
    return false;
  }
  float levels[4];
  PanMatrix(slot->pan, sound.channels, levels);
  XAUDIO2_BUFFER buffer{};
  buffer.Flags = XAUDIO2_END_OF_STREAM;
  buffer.AudioBytes = static_cast<UINT32>(sound.samples.size());
  buffer.pAudioData = sound.samples.data();
  buffer.LoopCount = looping ? XAUDIO2_LOOP_INFINITE : 0;
  if (FAILED(slot->voice->SetOutputMatrix(nullptr, sound.channels, 2, levels)) ||
      FAILED(slot->voice->SubmitSourceBuffer(&buffer)) || FAILED(slot->voice->Start(0))) {
    Silence(slot);
    return false;
  }
  return true;
}

// DestroyVoice returns once the voice has left the mix, so its samples may
// go right after.
void XAudio2Control::Silence(Slot* slot) {
  if (slot->voice == nullptr) return;
  slot->voice->DestroyVoice();
  slot->voice = nullptr;
}

bool XAudio2Control::Queued(const Slot& slot) {
  if (slot.voice == nullptr) return false;
  XAUDIO2_VOICE_STATE state{};
  slot.voice->GetState(&state, XAUDIO2_VOICE_NOSAMPLESPLAYED);
  return state.BuffersQueued > 0;
}

std::unique_ptr<IAudioControl> CreateXAudio2Control() { return std::make_unique<XAudio2Control>(); }

std::unique_ptr<IWaveDevices> CreateWinmmWaveDevices() { return std::make_unique<WinmmWaveDevices>(); }

}  // namespace jeerbox
