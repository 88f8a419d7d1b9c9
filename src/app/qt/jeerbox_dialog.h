// The main window on Qt Widgets: the sentence in a locked text box, four
// buttons, and the sponsor banner on a blue band at the foot. Only layout,
// fonts, colours and wiring; what the events do is FJeerbox's.
#pragma once

#include <QDialog>

#include "app/jeerbox_view.h"

class QLabel;
class QPushButton;

namespace jeerbox {

class CImage;
class CShape;
class CTextBox;
class FJeerbox;

class JeerboxDialog : public QDialog, public IJeerboxView {
  Q_OBJECT

 public:
  explicit JeerboxDialog(FJeerbox& form, QWidget* parent = nullptr);
  ~JeerboxDialog() override;
  Q_DISABLE_COPY_MOVE(JeerboxDialog)

  void Show() override;
  void SetInsultText(const std::string& text) override;
  std::string InsultText() const override;
  void SetCopyEnabled(bool enabled) override;
  void Close() override { close(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  // Escape presses the cancel button.
  void reject() override;

 private:
  void BuildControls();

  FJeerbox& mForm;
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
