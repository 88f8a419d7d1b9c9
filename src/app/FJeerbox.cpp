// The main form's handlers, in the order the program runs them.
#include "app/FJeerbox.h"

#include <climits>

#include "app/app_services.h"
#include "compose/MJeerbox.h"
#include "platform/clipboard.h"
#include "platform/internet.h"
#include "platform/message_box.h"
#include "platform/shell.h"
#include "sound/MSounds.h"
#include "support/failure.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"

namespace jeerbox {
namespace {

// INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_KEEP_CONNECTION
constexpr uint32_t kConnectionTestFlags = 0x84400000u;
static_assert(kConnectionTestFlags ==
              (INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_KEEP_CONNECTION));

}  // namespace

FJeerbox::FJeerbox(Deployment deployment, std::function<void()> shutdownApp)
    : mDeployment(std::move(deployment)),
      mShutdownApp(std::move(shutdownApp)),
      mInsultSource(GenerateInsult) {}

FJeerbox::~FJeerbox() = default;

void FJeerbox::Setup() {
  mInsultCount = 0;
  UpdateButtons();
}

void FJeerbox::Start() {
  if (mView) mView->Show();
}

std::string FJeerbox::AboutText() const {
  const std::string paragraphBreak = "\r\r";
  return "Jeerbox was developed by Hollowmere for fun and shouldn't be "
         "taken seriously by anyone!" +
         paragraphBreak +
         "Jeerbox is FREE and can be distributed to anyone using the FREE installation "
         "tool which is available for download at " +
         mDeployment.productSiteUrl + paragraphBreak +
         "If you are interested in sponsoring a copy to promote your business then "
         "contact us at " +
         mDeployment.sponsorsAddress + paragraphBreak + mDeployment.noticeLine;
}

// Each handler ends in its neutral result whatever fails below it: nothing
// may escape into the toolkit's event loop, which would end the program.
void FJeerbox::cmdAbout_Click() {
  IgnoringFailure([this] { Services().messageBox->MsgBox(AboutText(), kIconInformation, kAppTitle); });
}

void FJeerbox::cmdClose_Click() { IgnoringFailure(mShutdownApp); }

void FJeerbox::cmdCopy_Click() {
  IgnoringFailure([this] {
    if (mView) Services().clipboard->SetText(mView->InsultText());
  });
}

// A sentence that can't be made reads like one from missing files.
void FJeerbox::cmdInsult_Click() {
  const std::string sentence = ResultOr<std::string>(kMissingFilesText, mInsultSource);
  IgnoringFailure([this, &sentence] {
    if (mView) mView->SetInsultText(sentence);
  });
  IgnoringFailure([] { PlaySoundFX("misc_laugh"); });
  // Only being above 0 matters; the count stops rather than wrap negative.
  if (mInsultCount < INT16_MAX) ++mInsultCount;
  IgnoringFailure([this] { UpdateButtons(); });
}

void FJeerbox::Form_QueryUnload(int16_t& cancelFlag, int16_t unloadReason) {
  (void)cancelFlag;  // never set: the window always closes
  if (unloadReason == kUnloadFormControlMenu) IgnoringFailure(mShutdownApp);
}

void FJeerbox::imgSponsoredBy_Click() {
  IgnoringFailure([this] { TryURL(mDeployment.sponsorHomeUrl); });
}

void FJeerbox::TryURL(const std::string& url) {
  if (IsConnected()) {
    Services().shell->ShellExecuteA(nullptr, "open", url.c_str(), "", "", SW_HIDE);
  } else {
    ShowConnectionError(url);
  }
}

bool FJeerbox::IsConnected() {
  bool result = false;
  IInternet& net = *Services().internet;
  HINTERNET internet = net.InternetOpenA(kAppTitle, INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0);
  if (internet) {
    const std::string testUrl = mDeployment.ConnectionTestUrl();
    HINTERNET request = net.InternetOpenUrlA(internet, testUrl.c_str(), nullptr, 0, kConnectionTestFlags, 0);
    if (request) {
      result = true;
      net.InternetCloseHandle(request);
    }
    net.InternetCloseHandle(internet);
  }
  return result;
}

void FJeerbox::ShowConnectionError(const std::string& url) {
  Services().messageBox->MsgBox(
      url + "\r\r" +
          "You don't appear to have an internet connection or the URL is unavailable. "
          "You must have an active internet connection to perform the requested operation. "
          "If you do have a connection then the URL may be unavailable and you should try again later",
      kIconExclamation, kAppTitle);
}

void FJeerbox::UpdateButtons() {
  if (mView) mView->SetCopyEnabled(mInsultCount > 0);
}

void FJeerbox::Unload() {
  if (!mView) return;
  mUnloadRequested = true;
  mView->Close();  // a close already under way goes on; this one is refused
  mUnloadRequested = false;
}

bool FJeerbox::WindowClosing() {
  int16_t cancel = 0;
  Form_QueryUnload(cancel, mUnloadRequested ? kUnloadFormCode : kUnloadFormControlMenu);
  if (cancel != 0) return false;
  if (mOnUnloaded) IgnoringFailure(mOnUnloaded);
  return true;
}

}  // namespace jeerbox
