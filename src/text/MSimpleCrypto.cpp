#include "text/MSimpleCrypto.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace jeerbox {
namespace {

// The text files' key repeated to a length that both its own length and a
// machine word divide, so that eight bytes from any multiple of eight are
// the key bytes that eight bytes of text at that place meet.
constexpr size_t kStreamBytes = kTextFileKey.size() * sizeof(uint64_t);
constexpr std::array<char, kStreamBytes> MakeKeyStream() {
  std::array<char, kStreamBytes> stream{};
  for (size_t i = 0; i < kStreamBytes; ++i) stream[i] = kTextFileKey[i % kTextFileKey.size()];
  return stream;
}
constexpr std::array<char, kStreamBytes> kKeyStream = MakeKeyStream();

}  // namespace

// Every picked line is unscrambled: the text files' key goes a word at a
// time, any other byte by byte.
std::string SimpleCrypt(std::string_view text, std::string_view key) {
  std::string out(text);
  if (key.empty()) return out;
  size_t i = 0;
  if (key == kTextFileKey) {
    for (; i + sizeof(uint64_t) <= out.size(); i += sizeof(uint64_t)) {
      uint64_t word = 0;
      uint64_t mask = 0;
      std::memcpy(&word, &out[i], sizeof word);
      std::memcpy(&mask, &kKeyStream[i % kStreamBytes], sizeof mask);
      word ^= mask;
      std::memcpy(&out[i], &word, sizeof word);
    }
  }
  for (size_t k = i % key.size(); i < out.size(); ++i) {
    out[i] = static_cast<char>(out[i] ^ key[k]);
    if (++k == key.size()) k = 0;
  }
  return out;
}

}  // namespace jeerbox
