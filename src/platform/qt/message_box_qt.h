// Message boxes through QMessageBox.
#pragma once

#include <QString>

#include "platform/message_box.h"

namespace jeerbox {

class QtMessageBox : public IMessageBox {
 public:
  void MsgBox(const std::string& text, int icon, const std::string& title) override;
};

// The text as the box shows it: decoded, and each CR LF or lone CR as LF.
QString MessageBoxText(const std::string& text);

}  // namespace jeerbox
