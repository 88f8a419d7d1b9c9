// The Qt face of the main window on the offscreen platform: where the
// controls lie, the keys, the focus, the text it shows, and which part of
// the band takes a click. What the events do is the flow's, tested there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <cmath>

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
  }
  void TearDown() override {
    ReleaseForms();
    gFDMC = nullptr;
  }
  template <typename T>
  T* Control(const char* name) {
    T* widget = dialog->findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  QPushButton* Button(const char* name) { return Control<QPushButton>(name); }
  void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

  FakeFileSystem files;
  FakePlatform platform;
  FJeerbox* form = nullptr;
  JeerboxDialog* dialog = nullptr;
};

int Px(int twips) { return static_cast<int>(std::lround(twips / 15.0)); }

TEST_F(Dialog, ControlsLieFrontToBackInAFixedCentredWindow) {
  struct Row {
    const char* name;
    int left, top, width, height;
  };
  const Row rows[] = {
      {"cmdCopy", 120, 3600, 855, 375},         {"cmdInsult", 3023, 3600, 1095, 375},
      {"cmdClose", 5423, 3600, 1095, 375},      {"cmdAbout", 4223, 3600, 1095, 375},
      {"txtInsult", 263, 1320, 6135, 2055},     {"shpBorder", 150, 1200, 6375, 2295},
      {"lblHelp", 150, 480, 6375, 855},         {"lblSponsoredBy", 120, 4920, 6435, 210},
      {"imgSponsoredBy", 120, 4200, 6435, 660}, {"shpBG", -270, 4080, 7215, 1575},
  };
  int previousStackIndex = INT32_MAX;
  for (const Row& row : rows) {
    QWidget* widget = Control<QWidget>(row.name);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->geometry(), QRect(Px(row.left), Px(row.top), Px(row.width), Px(row.height)))
        << row.name;
    // Later children are painted on top, so front to back means descending.
    const int stackIndex = static_cast<int>(dialog->children().indexOf(widget));
    EXPECT_LT(stackIndex, previousStackIndex) << row.name;
    previousStackIndex = stackIndex;
  }
  EXPECT_EQ(dialog->size(), QSize(444, 347));
  EXPECT_EQ(dialog->minimumSize(), dialog->maximumSize());
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_LE(std::abs(dialog->frameGeometry().center().x() - screen.center().x()), 1);
  EXPECT_LE(std::abs(dialog->frameGeometry().center().y() - screen.center().y()), 1);
}

TEST_F(Dialog, StartsWithInsultFocusedAndTheDefault) {
  EXPECT_EQ(QApplication::focusWidget(), Button("cmdInsult"));
  EXPECT_TRUE(Button("cmdInsult")->isDefault());
  EXPECT_FALSE(Button("cmdCopy")->isEnabled());
  EXPECT_TRUE(Control<CTextBox>("txtInsult")->isReadOnly());
}

std::vector<std::string> TabWalk(int steps) {
  std::vector<std::string> names;
  for (int i = 0; i < steps; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    names.push_back(QApplication::focusWidget()->objectName().toStdString());
  }
  return names;
}

TEST_F(Dialog, TabTakesInCopyOnlyOnceItIsEnabled) {
  EXPECT_EQ(TabWalk(3), (std::vector<std::string>{"cmdAbout", "cmdClose", "cmdInsult"}));
  form->SetInsultSource([] { return std::string("Nitwit."); });
  Key(Qt::Key_Return);
  EXPECT_EQ(TabWalk(4), (std::vector<std::string>{"cmdAbout", "cmdClose", "cmdCopy", "cmdInsult"}));
}

TEST_F(Dialog, EnterPressesTheFocusedButtonSoCopyCopiesAgain) {
  int made = 0;
  form->SetInsultSource([&] { return "Sentence " + std::to_string(++made); });
  Key(Qt::Key_Return);  // Insult me, the default
  EXPECT_EQ(made, 1);
  QTest::mouseClick(Button("cmdCopy"), Qt::LeftButton);
  ASSERT_EQ(QApplication::focusWidget(), Button("cmdCopy"));
  Key(Qt::Key_Return);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(platform.clipboard.copies, (std::vector<std::string>{"Sentence 1", "Sentence 1"}));
}

TEST_F(Dialog, ShowsTheBytesAsWindows1252AndGivesThemBackWhole) {
  form->SetInsultSource([] { return std::string("Caf\xE9 \x93lout\x94 \x80\rnitwit "); });
  QTest::mouseClick(Button("cmdInsult"), Qt::LeftButton);
  auto* text = Control<CTextBox>("txtInsult");
  EXPECT_TRUE(text->toPlainText().startsWith(QString::fromUtf8("Café “lout” €")));
  EXPECT_TRUE(text->toPlainText().endsWith(QStringLiteral("nitwit ")));
  EXPECT_EQ(dialog->InsultText(), "Caf\xE9 \x93lout\x94 \x80\rnitwit ");
}

TEST_F(Dialog, EscapeEndsTheProgramWhereverTheFocusIs) {
  form->SetInsultSource([] { return std::string("Dolt."); });
  QTest::mouseClick(Button("cmdInsult"), Qt::LeftButton);
  QTest::mouseClick(Button("cmdCopy"), Qt::LeftButton);
  Key(Qt::Key_Escape);
  EXPECT_EQ(platform.process.Ends(), 1);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(Dialog, TitleBarCloseReachesTheFormAsTheUsersClose) {
  EXPECT_TRUE(dialog->close());
  EXPECT_EQ(platform.process.Ends(), 1);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(Dialog, OnlyTheBannerTakesAClickNotTheSponsorLine) {
  QWidget* underLine = dialog->childAt(Control<QLabel>("lblSponsoredBy")->geometry().center());
  QTest::mouseClick(underLine ? underLine : dialog, Qt::LeftButton);
  EXPECT_TRUE(platform.internet.calls.empty());
  QWidget* underBanner = dialog->childAt(Control<QLabel>("imgSponsoredBy")->geometry().center());
  ASSERT_NE(underBanner, nullptr);
  EXPECT_EQ(underBanner->objectName(), "imgSponsoredBy");
  QTest::mouseClick(underBanner, Qt::LeftButton);
  EXPECT_EQ(platform.shell.opened.size(), 1u);
}

}  // namespace
}  // namespace jeerbox::testing
