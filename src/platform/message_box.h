// Modal message boxes: an OK button, a text, an icon, the application title.
#pragma once

#include <QString>
#include <string>

namespace jeerbox {

constexpr int kIconExclamation = 48;
constexpr int kIconInformation = 64;

class IMessageBox {
 public:
  virtual ~IMessageBox() = default;
  // `text` is 8-bit Windows-1252; CR, LF and CR LF each end a line. Returns
  // when the user has dismissed the box.
  virtual void MsgBox(const std::string& text, int icon, const std::string& title) = 0;
};

class QtMessageBox : public IMessageBox {
 public:
  void MsgBox(const std::string& text, int icon, const std::string& title) override;
};

// The text as the box shows it: decoded, and each CR LF or lone CR as LF.
QString MessageBoxText(const std::string& text);

}  // namespace jeerbox
