#include "cli/escape.h"

namespace jeerbox {

std::string EscapeBytes(std::string_view text) {
  static const char kHex[] = "0123456789abcdef";
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    const auto u = static_cast<unsigned char>(c);
    switch (u) {
      case '\\':
        out += "\\\\";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (u < 0x20 || u >= 0x7F) {
          out += "\\x";
          out += kHex[u >> 4];
          out += kHex[u & 15];
        } else {
          out += c;
        }
    }
  }
  return out;
}

}  // namespace jeerbox
