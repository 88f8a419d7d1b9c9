// The Qt face of the main window on the offscreen platform: Enter and the
// focus, the text it shows, the close box reaching the form, and which part
// of the band takes a click. What the events do is the flow's, tested there;
// Escape is the end-to-end test's.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/MMain.h"
#include "app/fake_platform.h"
#include "app/qt/controls.h"
#include "app/qt/jeerbox_dialog.h"
#include "helpers/fake_file_system.h"
#include "sound/FDMC.h"

namespace jeerbox::testing {
namespace {

class Dialog : public ::testing::Test {
 protected:
  void SetUp() override {
    AppServices services = Services();
    services.makeMainView = [](FJeerbox& main) { return std::make_unique<JeerboxDialog>(main); };
    SetServices(services);
    Main();
    form = MainForm();
    dialog = dynamic_cast<JeerboxDialog*>(form->View());
    ASSERT_NE(dialog, nullptr);
    QApplication::setActiveWindow(dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    form->SetInsultSource([this] { return "Sentence " + std::to_string(++made); });
  }
  void TearDown() override {
    ReleaseForms();
    gFDMC = nullptr;
  }
  template <typename T = QPushButton>
  T* Control(const char* name) {
    T* widget = dialog->findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

  FakeFileSystem files;
  FakePlatform platform;
  FJeerbox* form = nullptr;
  JeerboxDialog* dialog = nullptr;
  int made = 0;
};

// Enter presses the default button at the start, and the focused one after.
TEST_F(Dialog, EnterPressesInsultFirstThenTheFocusedButton) {
  EXPECT_EQ(QApplication::focusWidget(), Control("cmdInsult"));
  Key(Qt::Key_Return);
  EXPECT_EQ(made, 1);
  QTest::mouseClick(Control("cmdCopy"), Qt::LeftButton);
  ASSERT_EQ(QApplication::focusWidget(), Control("cmdCopy"));
  Key(Qt::Key_Return);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(platform.copies, (std::vector<std::string>{"Sentence 1", "Sentence 1"}));
}

TEST_F(Dialog, ShowsTheBytesAsWindows1252AndGivesThemBackWhole) {
  dialog->SetInsultText("Caf\xE9 \x93lout\x94 \x80");
  EXPECT_EQ(Control<CTextBox>("txtInsult")->toPlainText(), QString::fromUtf8("Café “lout” €"));
  EXPECT_EQ(dialog->InsultText(), "Caf\xE9 \x93lout\x94 \x80");
}

TEST_F(Dialog, TitleBarCloseReachesTheFormAsTheUsersClose) {
  EXPECT_TRUE(dialog->close());
  EXPECT_EQ(platform.ends, 1);
}

TEST_F(Dialog, OnlyTheBannerTakesAClickNotTheSponsorLine) {
  QWidget* underLine = dialog->childAt(Control<QLabel>("lblSponsoredBy")->geometry().center());
  QTest::mouseClick(underLine ? underLine : dialog, Qt::LeftButton);
  EXPECT_TRUE(platform.urls.empty());
  QWidget* underBanner = dialog->childAt(Control<QLabel>("imgSponsoredBy")->geometry().center());
  ASSERT_NE(underBanner, nullptr);
  QTest::mouseClick(underBanner, Qt::LeftButton);
  EXPECT_EQ(platform.opened.size(), 1u);
}

}  // namespace
}  // namespace jeerbox::testing
