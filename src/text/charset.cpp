#include "text/charset.h"

namespace jeerbox {
namespace {

// Lower-case letters outside ASCII whose upper case sits at a fixed offset.
bool IsLowerLatin(unsigned char u) { return u >= 0xE0 && u != 0xF7 && u != 0xFF; }
bool IsUpperLatin(unsigned char u) { return u >= 0xC0 && u <= 0xDE && u != 0xD7; }

}  // namespace

char ToUpper1252(char c) {
  const auto u = static_cast<unsigned char>(c);
  if (u >= 'a' && u <= 'z') return static_cast<char>(u - 32);
  if (IsLowerLatin(u)) return static_cast<char>(u - 32);
  switch (u) {
    case 0x9A:
      return static_cast<char>(0x8A);  // š
    case 0x9C:
      return static_cast<char>(0x8C);  // œ
    case 0x9E:
      return static_cast<char>(0x8E);  // ž
    case 0xFF:
      return static_cast<char>(0x9F);  // ÿ
    default:
      return c;
  }
}

char ToLower1252(char c) {
  const auto u = static_cast<unsigned char>(c);
  if (u >= 'A' && u <= 'Z') return static_cast<char>(u + 32);
  if (IsUpperLatin(u)) return static_cast<char>(u + 32);
  switch (u) {
    case 0x8A:
      return static_cast<char>(0x9A);
    case 0x8C:
      return static_cast<char>(0x9C);
    case 0x8E:
      return static_cast<char>(0x9E);
    case 0x9F:
      return static_cast<char>(0xFF);
    default:
      return c;
  }
}

}  // namespace jeerbox
