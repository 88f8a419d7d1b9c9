// The main window on Win32: a fixed dialog with the sentence in a locked
// text box, four buttons, and the sponsor banner on a blue band at the
// foot. Only layout, fonts, colours and wiring; what the events do is
// FJeerbox's. Win32 types stay out of this header, so that it mixes with the
// seams, whose names windows.h would take as macros.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/jeerbox_view.h"

namespace jeerbox {

class FJeerbox;
struct DialogPaint;

class JeerboxWindow : public IJeerboxView {
 public:
  // Makes the dialog, hidden, from the program's resources in `instance`.
  JeerboxWindow(FJeerbox& form, void* instance);
  ~JeerboxWindow() override;
  JeerboxWindow(const JeerboxWindow&) = delete;
  JeerboxWindow& operator=(const JeerboxWindow&) = delete;

  void Show() override;
  void SetInsultText(const std::string& text) override;
  std::string InsultText() const override { return mText; }
  void SetCopyEnabled(bool enabled) override;
  void Close() override;

  void* Handle() const { return mDialog; }

 private:
  friend struct DialogProcedure;
  intptr_t OnMessage(unsigned message, uintptr_t wParam, intptr_t lParam);
  void BuildControls();
  void OnCommand(int id);
  bool OverBanner(intptr_t lParam) const;

  FJeerbox& mForm;
  void* mInstance;
  void* mDialog = nullptr;
  void* cmdInsult = nullptr;
  void* cmdAbout = nullptr;
  void* cmdClose = nullptr;
  void* txtInsult = nullptr;
  void* cmdCopy = nullptr;
  std::unique_ptr<DialogPaint> mPaint;
  std::string mText;
  bool mClosing = false;
  bool mBannerPressed = false;
};

// The thread's message loop, with the dialog keys (Tab, Enter, Escape) for
// the main window while it is up. Returns the exit code WM_QUIT carries.
int RunMessageLoop();

}  // namespace jeerbox
