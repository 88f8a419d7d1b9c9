// The clipboard through Qt. Under X the text stays available while this
// process runs.
#pragma once

#include "platform/clipboard.h"

namespace jeerbox {

class QtClipboard : public IClipboard {
 public:
  void SetText(const std::string& text) override;
};

}  // namespace jeerbox
