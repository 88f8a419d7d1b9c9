// The clipboard, plain text only.
#pragma once

#include <string>

namespace jeerbox {

class IClipboard {
 public:
  virtual ~IClipboard() = default;
  // Puts `text` (8-bit Windows-1252, character for character) on the
  // clipboard in one call, without clearing it first. A clipboard that
  // can't be written is left as it is; the caller never hears of it.
  virtual void SetText(const std::string& text) = 0;
};

}  // namespace jeerbox
