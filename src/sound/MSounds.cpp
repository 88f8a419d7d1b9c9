#include "sound/MSounds.h"

#include <cstdint>

#include "sound/FDMC.h"
#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "support/random.h"

namespace jeerbox {
namespace {

// Variants run from 1 without a gap; the count is the last that exists.
int16_t CountVariants(const std::string& name) {
  int16_t count = 1;
  while (count < INT16_MAX && FileExists(FindMediaFile(name, static_cast<int16_t>(count + 1)))) ++count;
  return count;
}

}  // namespace

void PlaySoundFX(const std::string& name) { PlaySoundFile(name, false, true, 0); }

void PlaySoundFile(const std::string& name, bool looping, bool isFX, int16_t mode) {
  std::string path;
  if (FileExists(FindMediaFile(name, 1))) {
    const int16_t count = CountVariants(name);
    Reseed();
    path = FindMediaFile(name, static_cast<int16_t>(RandomNumber(count)));
  } else {
    path = FindMediaFile(name, 0);
  }
  if (gFDMC == nullptr) return;
  if (isFX)
    gFDMC->PlayGameSoundFX(path);
  else if (mode == 1)
    gFDMC->PlayGameSoundBG(path, looping);
}

std::string FindMediaFile(const std::string& name, int16_t number) {
  const std::string mp3 = BuildMediaPath(name, number, "mp3");
  return FileExists(mp3) ? mp3 : BuildMediaPath(name, number, "wav");
}

std::string BuildMediaPath(const std::string& name, int16_t number, const std::string& extension) {
  std::string path = gAppPath + "\\Media\\" + name;
  if (number >= 1) path += std::to_string(number);
  return ChangeExtension(path, extension);
}

}  // namespace jeerbox
