// The main window: the sentence in a locked text box, four buttons, and the
// sponsor banner on a blue band at the foot.
#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>
#include <string>

#include "app/MForms.h"
#include "app/deployment.h"

class QLabel;
class QPushButton;

namespace jeerbox {

class CImage;
class CShape;
class CTextBox;

// Why a form is being unloaded, as Form_QueryUnload hears it.
constexpr int16_t kUnloadFormControlMenu = 0;  // the user, from the title bar or window manager
constexpr int16_t kUnloadFormCode = 1;         // the program itself

class FJeerbox : public QDialog {
  Q_OBJECT

 public:
  explicit FJeerbox(const Deployment& deployment, QWidget* parent = nullptr);
  ~FJeerbox() override;
  Q_DISABLE_COPY_MOVE(FJeerbox)

  void Setup();
  void Start();
  void TryURL(const std::string& url);
  bool IsConnected();

  // Unloads the form the way the program asks for it; see Form_QueryUnload.
  void Unload();
  bool IsLoaded() const { return mFormId != 0; }
  void SetFormId(FormId id) { mFormId = id; }

  // Where sentences come from; GenerateInsult unless a test says otherwise.
  void SetInsultSource(std::function<std::string()> source) { mInsultSource = std::move(source); }
  int16_t InsultCount() const { return mInsultCount; }

  // The about box's text, as 8-bit text with CR paragraph breaks.
  std::string AboutText() const;

  // The window's events. Public so that tests can raise them one by one as
  // the toolkit would; nothing else in the program calls them.
  void cmdAbout_Click();
  void cmdClose_Click();
  void cmdCopy_Click();
  void cmdInsult_Click();
  void Form_QueryUnload(int16_t& cancelFlag, int16_t unloadReason);
  void imgSponsoredBy_Click();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  void BuildControls();
  void ShowConnectionError(const std::string& url);
  void UpdateButtons();

  Deployment mDeployment;
  std::function<std::string()> mInsultSource;
  int16_t mInsultCount = 0;
  FormId mFormId = 0;
  bool mUnloadRequested = false;

  QPushButton* cmdCopy = nullptr;
  QPushButton* cmdInsult = nullptr;
  QPushButton* cmdClose = nullptr;
  QPushButton* cmdAbout = nullptr;
  CTextBox* txtInsult = nullptr;
  QLabel* lblTitle = nullptr;
  CShape* shpBorder = nullptr;
  QLabel* lblHelp = nullptr;
  QLabel* lblSponsoredBy = nullptr;
  CImage* imgSponsoredBy = nullptr;
  CShape* shpBG = nullptr;
};

}  // namespace jeerbox
