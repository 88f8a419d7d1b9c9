// Whole sound files decoded to PCM by Media Foundation (MP3, WAV and what
// else the system decodes), for a mixer that plays from memory.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jeerbox {

struct PcmSound {
  uint16_t channels = 0;
  uint32_t sampleRate = 0;
  uint16_t bitsPerSample = 16;
  std::vector<uint8_t> samples;  // interleaved, little-endian
};

// Needs Media Foundation started (MFStartup) on a thread with COM. False,
// with `sound` empty, when the file can't be read or decoded, or its PCM
// would pass kMaxPcmBytes.
bool DecodeToPcm(const std::wstring& path, PcmSound* sound);

constexpr size_t kMaxPcmBytes = size_t{64} << 20;  // over six minutes of CD audio

}  // namespace jeerbox
