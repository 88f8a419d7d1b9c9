// The clipboard, plain text only.
#pragma once

#include <QString>

namespace jeerbox {

class IClipboard {
 public:
  virtual ~IClipboard() = default;
  // Puts `text` on the clipboard in one call. A clipboard that can't be
  // written is left as it is; the caller never hears of it.
  virtual void SetText(const QString& text) = 0;
};

class QtClipboard : public IClipboard {
 public:
  void SetText(const QString& text) override;
};

}  // namespace jeerbox
