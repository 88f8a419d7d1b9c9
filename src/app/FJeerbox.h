// The main form's logic: the count of sentences, the Copy button's state,
// the handlers of the window's events, the connection test and the about
// box. The window itself is a face (IJeerboxView) a toolkit provides.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "app/deployment.h"
#include "app/jeerbox_view.h"

namespace jeerbox {

// Why a form is being unloaded, as Form_QueryUnload hears it.
constexpr int16_t kUnloadFormControlMenu = 0;  // the user, from the title bar or window manager
constexpr int16_t kUnloadFormCode = 1;         // the program itself

class FJeerbox {
 public:
  // `shutdownApp` is the program's orderly end, which Close and the title
  // bar's close lead to.
  FJeerbox(Deployment deployment, std::function<void()> shutdownApp);
  ~FJeerbox();
  FJeerbox(const FJeerbox&) = delete;
  FJeerbox& operator=(const FJeerbox&) = delete;

  // The face this form drives; the form keeps it.
  void AttachView(std::unique_ptr<IJeerboxView> view) { mView = std::move(view); }
  IJeerboxView* View() const { return mView.get(); }
  const Deployment& GetDeployment() const { return mDeployment; }

  void Setup();
  void Start();
  void TryURL(const std::string& url);
  bool IsConnected();

  // Unloads the form as the program asks for it; see Form_QueryUnload.
  void Unload();
  // The face calls this before its window goes, however the close came
  // about. False keeps the window. `onUnloaded` runs once it may go.
  bool WindowClosing();
  void SetUnloadedHandler(std::function<void()> onUnloaded) { mOnUnloaded = std::move(onUnloaded); }

  // Where sentences come from; GenerateInsult unless a test says otherwise.
  void SetInsultSource(std::function<std::string()> source) { mInsultSource = std::move(source); }
  int16_t InsultCount() const { return mInsultCount; }

  // The about box's text, as 8-bit text with CR paragraph breaks.
  std::string AboutText() const;

  // The window's events, raised by the face.
  void cmdAbout_Click();
  void cmdClose_Click();
  void cmdCopy_Click();
  void cmdInsult_Click();
  void Form_QueryUnload(int16_t& cancelFlag, int16_t unloadReason);
  void imgSponsoredBy_Click();

 private:
  void ShowConnectionError(const std::string& url);
  void UpdateButtons();

  Deployment mDeployment;
  std::function<void()> mShutdownApp;
  std::function<void()> mOnUnloaded;
  std::function<std::string()> mInsultSource;
  std::unique_ptr<IJeerboxView> mView;
  int16_t mInsultCount = 0;
  bool mUnloadRequested = false;
};

}  // namespace jeerbox
