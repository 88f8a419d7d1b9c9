// From a sound's name to a media file under Media\, and on to the audio
// form. A name stands for one file or for numbered variants picked at random.
#pragma once

#include <cstdint>
#include <string>

namespace jeerbox {

void PlaySoundFX(const std::string& name);
// Only an effect or mode 1 (music) plays; any other call selects for nothing.
void PlaySoundFile(const std::string& name, bool looping, bool isFX, int16_t mode);
// The mp3 path when that file exists, else the wav path, existing or not.
std::string FindMediaFile(const std::string& name, int16_t number);
// gAppPath\Media\<name>[<number>].<extension>; numbers below 1 add nothing.
std::string BuildMediaPath(const std::string& name, int16_t number, const std::string& extension);

}  // namespace jeerbox
