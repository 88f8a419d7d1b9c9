#include "text/MSimpleCrypto.h"

namespace jeerbox {

std::string SimpleCrypt(std::string_view text, std::string_view key) {
  std::string out(text);
  if (key.empty()) return out;
  size_t k = 0;
  for (char& c : out) {
    c = static_cast<char>(c ^ key[k]);
    if (++k == key.size()) k = 0;
  }
  return out;
}

}  // namespace jeerbox
