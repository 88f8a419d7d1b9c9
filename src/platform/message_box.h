// Modal message boxes: an OK button, a text, an icon, a title.
#pragma once

#include <string>

namespace jeerbox {

constexpr int kIconExclamation = 48;
constexpr int kIconInformation = 64;

class IMessageBox {
 public:
  virtual ~IMessageBox() = default;
  // `text` and `title` are 8-bit Windows-1252; CR, LF and CR LF each end a
  // line. Returns when the user has dismissed the box.
  virtual void MsgBox(const std::string& text, int icon, const std::string& title) = 0;
};

}  // namespace jeerbox
