// The source reader converts any audio stream it can open to 16-bit PCM;
// the samples are gathered into one buffer, as a sound's whole length.
#include "platform/win32/media_decoder_mf.h"

#include <windows.h>

#include <mfapi.h>
#include <mfidl.h>
#include <mfreadwrite.h>
#include <wrl/client.h>

#include "platform/file_system.h"

namespace jeerbox {
namespace {

using Microsoft::WRL::ComPtr;
constexpr DWORD kAudio = static_cast<DWORD>(MF_SOURCE_READER_FIRST_AUDIO_STREAM);

bool AskForPcm(IMFSourceReader* reader) {
  ComPtr<IMFMediaType> pcm;
  return SUCCEEDED(reader->SetStreamSelection(static_cast<DWORD>(MF_SOURCE_READER_ALL_STREAMS), FALSE)) &&
         SUCCEEDED(reader->SetStreamSelection(kAudio, TRUE)) && SUCCEEDED(MFCreateMediaType(&pcm)) &&
         SUCCEEDED(pcm->SetGUID(MF_MT_MAJOR_TYPE, MFMediaType_Audio)) &&
         SUCCEEDED(pcm->SetGUID(MF_MT_SUBTYPE, MFAudioFormat_PCM)) &&
         SUCCEEDED(pcm->SetUINT32(MF_MT_AUDIO_BITS_PER_SAMPLE, 16)) &&
         SUCCEEDED(reader->SetCurrentMediaType(kAudio, nullptr, pcm.Get()));
}

bool ReadFormat(IMFSourceReader* reader, PcmSound* sound) {
  ComPtr<IMFMediaType> type;
  UINT32 channels = 0, rate = 0, bits = 0;
  if (FAILED(reader->GetCurrentMediaType(kAudio, &type)) ||
      FAILED(type->GetUINT32(MF_MT_AUDIO_NUM_CHANNELS, &channels)) ||
      FAILED(type->GetUINT32(MF_MT_AUDIO_SAMPLES_PER_SECOND, &rate)) ||
      FAILED(type->GetUINT32(MF_MT_AUDIO_BITS_PER_SAMPLE, &bits)))
    return false;
  if (channels < 1 || channels > 2 || rate == 0 || bits != 16) return false;
  sound->channels = static_cast<uint16_t>(channels);
  sound->sampleRate = rate;
  sound->bitsPerSample = 16;
  return true;
}

bool Append(IMFSample* sample, std::vector<uint8_t>* samples) {
  ComPtr<IMFMediaBuffer> buffer;
  BYTE* data = nullptr;
  DWORD length = 0;
  if (FAILED(sample->ConvertToContiguousBuffer(&buffer)) || FAILED(buffer->Lock(&data, nullptr, &length)))
    return false;
  const bool fits = samples->size() + length <= kMaxPcmBytes;
  if (fits) samples->insert(samples->end(), data, data + length);
  buffer->Unlock();
  return fits;
}

bool ReadAll(IMFSourceReader* reader, std::vector<uint8_t>* samples) {
  for (;;) {
    DWORD flags = 0;
    ComPtr<IMFSample> sample;
    if (FAILED(reader->ReadSample(kAudio, 0, nullptr, &flags, nullptr, &sample))) return false;
    if (sample && !Append(sample.Get(), samples)) return false;
    if (flags & MF_SOURCE_READERF_ERROR) return false;
    if (flags & MF_SOURCE_READERF_ENDOFSTREAM) return true;
  }
}

// Media Foundation opens the file itself; what the guarded read would refuse
// (a pipe, a device, a file beyond kMaxMediaBytes) never reaches it.
bool IsPlainMediaFile(const std::wstring& path) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  LARGE_INTEGER size{};
  const bool plain = GetFileType(file) == FILE_TYPE_DISK && GetFileSizeEx(file, &size) &&
                     size.QuadPart >= 0 && static_cast<uint64_t>(size.QuadPart) <= kMaxMediaBytes;
  CloseHandle(file);
  return plain;
}

}  // namespace

bool DecodeToPcm(const std::wstring& path, PcmSound* sound) {
  *sound = PcmSound();
  ComPtr<IMFSourceReader> reader;
  const bool ok = IsPlainMediaFile(path) &&
                  SUCCEEDED(MFCreateSourceReaderFromURL(path.c_str(), nullptr, &reader)) &&
                  AskForPcm(reader.Get()) && ReadFormat(reader.Get(), sound) &&
                  ReadAll(reader.Get(), &sound->samples) && !sound->samples.empty();
  if (!ok) *sound = PcmSound();
  return ok;
}

}  // namespace jeerbox
