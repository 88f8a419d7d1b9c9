// The main window as the program flow sees it: a face that a toolkit draws
// and that reports the window's events to FJeerbox.
#pragma once

#include <string>

namespace jeerbox {

class IJeerboxView {
 public:
  virtual ~IJeerboxView() = default;
  // Shows the window, not modally, centred on the screen, with the focus on
  // cmdInsult.
  virtual void Show() = 0;
  // txtInsult's text: 8-bit Windows-1252, shown character for character
  // and given back as it was set.
  virtual void SetInsultText(const std::string& text) = 0;
  virtual std::string InsultText() const = 0;
  virtual void SetCopyEnabled(bool enabled) = 0;
  // Closes the window. Every close, whoever asks for it, reaches
  // FJeerbox::WindowClosing before the window goes.
  virtual void Close() = 0;
};

}  // namespace jeerbox
