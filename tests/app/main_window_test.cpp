// The main window: its layout, its buttons, the keyboard, the text it shows
// and copies, and the about box.
#include <QLabel>
#include <QScrollBar>
#include <cmath>

#include "app/controls.h"
#include "app/deployment.h"
#include "app_fixture.h"
#include "platform/message_box.h"
#include "platform/windows_1252.h"
#include "support/globals.h"

namespace jeerbox::testing {
namespace {

struct ControlRow {
  const char* name;
  int left, top, width, height;
};

// Front to back, in twips.
const ControlRow kLayout[] = {
    {"cmdCopy", 120, 3600, 855, 375},         {"cmdInsult", 3023, 3600, 1095, 375},
    {"cmdClose", 5423, 3600, 1095, 375},      {"cmdAbout", 4223, 3600, 1095, 375},
    {"txtInsult", 263, 1320, 6135, 2055},     {"lblTitle", 150, 120, 4965, 210},
    {"shpBorder", 150, 1200, 6375, 2295},     {"lblHelp", 150, 480, 6375, 855},
    {"lblSponsoredBy", 120, 4920, 6435, 210}, {"imgSponsoredBy", 120, 4200, 6435, 660},
    {"shpBG", -270, 4080, 7215, 1575},
};

int Px(int twips) { return static_cast<int>(std::lround(twips / 15.0)); }

using MainWindow = StartedApp;

TEST_F(MainWindow, ControlsLieWhereTheTableSaysFrontToBack) {
  int previousStackIndex = INT32_MAX;
  for (const ControlRow& row : kLayout) {
    QWidget* widget = Control<QWidget>(row.name);
    ASSERT_NE(widget, nullptr);
    const QRect expected(Px(row.left), Px(row.top), Px(row.width), Px(row.height));
    if (std::string(row.name) == "lblTitle") {
      // Sized to its text: only the position is fixed.
      EXPECT_EQ(widget->pos(), expected.topLeft());
      EXPECT_EQ(widget->size(), widget->sizeHint());
    } else {
      EXPECT_EQ(widget->geometry(), expected) << row.name;
    }
    // Later children are painted on top, so front to back means descending.
    const int stackIndex = static_cast<int>(form->children().indexOf(widget));
    EXPECT_LT(stackIndex, previousStackIndex) << row.name;
    previousStackIndex = stackIndex;
  }
}

TEST_F(MainWindow, IsAFixedCentredDialogCaptionedWithTheProductDomain) {
  EXPECT_EQ(form->size(), QSize(444, 347));
  EXPECT_EQ(form->minimumSize(), form->maximumSize());
  EXPECT_EQ(form->windowTitle().toStdString(), BuiltInDeployment().productDomain);
  EXPECT_FALSE(form->windowFlags() & Qt::WindowMinimizeButtonHint);
  EXPECT_FALSE(form->windowFlags() & Qt::WindowMaximizeButtonHint);
  EXPECT_TRUE(form->windowFlags() & Qt::WindowCloseButtonHint);
  EXPECT_EQ(form->palette().color(QPalette::Window), QColor(Qt::white));
  EXPECT_FALSE(form->windowIcon().isNull());
  EXPECT_EQ(form->windowIcon().availableSizes().value(0), QSize(32, 32));
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_LE(std::abs(form->frameGeometry().center().x() - screen.center().x()), 1);
  EXPECT_LE(std::abs(form->frameGeometry().center().y() - screen.center().y()), 1);
  // The band reaches past the left, right and bottom edges, below the buttons.
  const QRect band = Control<QWidget>("shpBG")->geometry();
  EXPECT_LT(band.left(), 0);
  EXPECT_GT(band.right(), form->width());
  EXPECT_GT(band.bottom(), form->height());
  EXPECT_GT(band.top(), Button("cmdInsult")->geometry().bottom());
}

TEST_F(MainWindow, CaptionsToolTipFontsAndColours) {
  EXPECT_EQ(Button("cmdCopy")->text(), "Copy");
  EXPECT_EQ(Button("cmdInsult")->text(), "Insult me");
  EXPECT_EQ(Button("cmdClose")->text(), "Close");
  EXPECT_EQ(Button("cmdAbout")->text(), "About...");
  EXPECT_EQ(Button("cmdCopy")->toolTip(), "Copy insult to clipboard");
  EXPECT_EQ(Control<QLabel>("lblTitle")->text(), "Thank you for using Jeerbox - by Hollowmere");
  EXPECT_EQ(Control<QLabel>("lblHelp")->text(),
            "Jeerbox will generate offensive insults for you on demand. Never again be stuck for a "
            "cutting remark! Please show your support for this FREE product by visiting our sponsor's "
            "website. Jeerbox contains no spyware or malware of any kind");
  EXPECT_TRUE(Control<QLabel>("lblHelp")->wordWrap());
  EXPECT_EQ(Control<QLabel>("lblSponsoredBy")->text().toStdString(),
            "Sponsored by: " + BuiltInDeployment().sponsorHost);
  EXPECT_TRUE(Control<QLabel>("lblSponsoredBy")->alignment() & Qt::AlignHCenter);

  EXPECT_EQ(form->font().family(), "Tahoma");
  EXPECT_DOUBLE_EQ(form->font().pointSizeF(), 8.25);
  const QFont title = Control<QLabel>("lblTitle")->font();
  EXPECT_DOUBLE_EQ(title.pointSizeF(), 9);
  EXPECT_TRUE(title.bold() && title.underline());
  const QFont sentence = Control<QWidget>("txtInsult")->font();
  EXPECT_DOUBLE_EQ(sentence.pointSizeF(), 9.75);
  EXPECT_TRUE(sentence.bold());

  const QColor teal(0, 128, 128);
  EXPECT_EQ(Control<QLabel>("lblTitle")->palette().color(QPalette::WindowText), teal);
  EXPECT_EQ(Control<QLabel>("lblHelp")->palette().color(QPalette::WindowText), teal);
  EXPECT_EQ(Control<QLabel>("lblSponsoredBy")->palette().color(QPalette::WindowText), QColor(Qt::white));
  EXPECT_EQ(Control<QWidget>("txtInsult")->palette().color(QPalette::Text), teal);
  auto* band = Control<CShape>("shpBG");
  EXPECT_EQ(band->FillColor(), QColor(0, 153, 255));
  EXPECT_EQ(band->OutlineColor(), QColor(0, 64, 64));
  auto* border = Control<CShape>("shpBorder");
  EXPECT_FALSE(border->FillColor().isValid());
  EXPECT_EQ(border->OutlineColor(), teal);
  EXPECT_EQ(border->OutlineWidth(), 2);
}

TEST_F(MainWindow, BannerHasItsPictureAndTheHandCursor) {
  auto* banner = Control<QLabel>("imgSponsoredBy");
  EXPECT_EQ(banner->pixmap().size(), QSize(429, 44));
  const QCursor cursor = banner->cursor();
  EXPECT_EQ(cursor.shape(), Qt::BitmapCursor);
  EXPECT_EQ(cursor.hotSpot(), QPoint(5, 0));
  EXPECT_EQ(cursor.pixmap().size(), QSize(32, 32));
  // Black and white (and clear), nothing else.
  const QImage image = cursor.pixmap().toImage();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qAlpha(pixel) == 0) continue;
      EXPECT_TRUE(pixel == qRgb(0, 0, 0) || pixel == qRgb(255, 255, 255)) << x << "," << y;
    }
  }
  EXPECT_NE(qAlpha(image.pixel(5, 0)), 0) << "the hot spot is on the fingertip";
}

TEST_F(MainWindow, StartsWithTheStartTextCopyDisabledAndInsultFocused) {
  auto* text = Control<CTextBox>("txtInsult");
  EXPECT_EQ(text->Text(), "Click \"Insult me\" to generate an insult\r\n");
  EXPECT_TRUE(text->isReadOnly());
  EXPECT_EQ(text->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
  EXPECT_FALSE(Button("cmdCopy")->isEnabled());
  EXPECT_EQ(QApplication::focusWidget(), Button("cmdInsult"));
  EXPECT_TRUE(Button("cmdInsult")->isDefault());
  QTest::mouseClick(Button("cmdCopy"), Qt::LeftButton);
  EXPECT_TRUE(platform.clipboard.copies.empty());
}

std::vector<std::string> TabWalk(int steps) {
  std::vector<std::string> names;
  for (int i = 0; i < steps; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    names.push_back(QApplication::focusWidget()->objectName().toStdString());
  }
  return names;
}

TEST_F(MainWindow, TabTakesInCopyOnlyOnceItIsEnabled) {
  EXPECT_EQ(TabWalk(3), (std::vector<std::string>{"cmdAbout", "cmdClose", "cmdInsult"}));
  form->SetInsultSource([] { return std::string("Nitwit."); });
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(TabWalk(4), (std::vector<std::string>{"cmdAbout", "cmdClose", "cmdCopy", "cmdInsult"}));
}

TEST_F(MainWindow, SentenceIsShownAndCopiedCharacterForCharacter) {
  // Windows-1252 bytes, a stray CR and a trailing blank.
  form->SetInsultSource([] { return std::string("Caf\xE9 \x93lout\x94 \x80\x85\rnitwit "); });
  QTest::mouseClick(Button("cmdInsult"), Qt::LeftButton);
  const QString expected = QString::fromUtf8("Café “lout” €…\rnitwit ");
  auto* text = Control<CTextBox>("txtInsult");
  EXPECT_EQ(text->Text(), expected);
  EXPECT_TRUE(text->toPlainText().endsWith(QStringLiteral("nitwit ")));
  EXPECT_TRUE(Button("cmdCopy")->isEnabled());
  QTest::mouseClick(Button("cmdCopy"), Qt::LeftButton);
  ASSERT_EQ(platform.clipboard.copies.size(), 1u);
  EXPECT_EQ(platform.clipboard.copies[0], expected);
}

TEST_F(MainWindow, EachSentenceReplacesTheLastPlaysALaughAndKeepsCopyEnabled) {
  files.Write(gAppPath + "\\Media\\misc_laugh.wav", "RIFF");
  int n = 0;
  form->SetInsultSource([&] { return "Sentence " + std::to_string(++n); });
  for (int i = 0; i < 3; ++i) QTest::mouseClick(Button("cmdInsult"), Qt::LeftButton);
  EXPECT_EQ(Control<CTextBox>("txtInsult")->Text(), "Sentence 3");
  EXPECT_EQ(form->InsultCount(), 3);
  EXPECT_TRUE(Button("cmdCopy")->isEnabled());
  int laughs = 0;
  for (const std::string& entry : platform.log) laughs += entry.find("misc_laugh.wav") != std::string::npos;
  EXPECT_EQ(laughs, 3);
}

TEST_F(MainWindow, EnterPressesTheFocusedButtonSoCopyCopiesAgain) {
  int made = 0;
  form->SetInsultSource([&] { return "Sentence " + std::to_string(++made); });
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);  // Insult me, the default
  EXPECT_EQ(made, 1);
  QTest::mouseClick(Button("cmdCopy"), Qt::LeftButton);
  ASSERT_EQ(QApplication::focusWidget(), Button("cmdCopy"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(platform.clipboard.copies.size(), 2u);
}

TEST_F(MainWindow, LongSentenceScrollsInsideTheBox) {
  std::string longSentence;
  for (int i = 0; i < 80; ++i) longSentence += "You pustulent, festering heap of ";
  form->SetInsultSource([&] { return longSentence; });
  const QRect before = Control<QWidget>("txtInsult")->geometry();
  QTest::mouseClick(Button("cmdInsult"), Qt::LeftButton);
  EXPECT_EQ(Control<QWidget>("txtInsult")->geometry(), before);
  EXPECT_GT(Control<CTextBox>("txtInsult")->verticalScrollBar()->maximum(), 0);
}

TEST_F(MainWindow, AboutBoxTellsWhoMadeIt) {
  QTest::mouseClick(Button("cmdAbout"), Qt::LeftButton);
  ASSERT_EQ(platform.messageBox.shown.size(), 1u);
  const ShownMessage& about = platform.messageBox.shown[0];
  const Deployment d = BuiltInDeployment();
  EXPECT_EQ(about.text,
            "Jeerbox was developed by Hollowmere for fun and shouldn't be taken seriously by anyone!\r\r"
            "Jeerbox is FREE and can be distributed to anyone using the FREE installation tool which is "
            "available for download at " +
                d.productSiteUrl + "\r\r" +
                "If you are interested in sponsoring a copy to promote your business then contact us at " +
                d.sponsorsAddress + "\r\r" + d.noticeLine);
  EXPECT_EQ(about.icon, kIconInformation);
  EXPECT_EQ(about.title, "Jeerbox");
  // Shown with each lone CR as a line break: four paragraphs, blank lines between.
  EXPECT_EQ(MessageBoxText(about.text).split('\n').size(), 7);
}

TEST_F(MainWindow, EscapeEndsTheProgramWhereverTheFocusIs) {
  form->SetInsultSource([] { return std::string("Dolt."); });
  QTest::mouseClick(Button("cmdInsult"), Qt::LeftButton);
  QTest::mouseClick(Button("cmdCopy"), Qt::LeftButton);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(platform.process.Ends(), 1);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(platform.messageBox.shown.empty());
}

TEST_F(MainWindow, CloseButtonEndsTheProgram) {
  QTest::mouseClick(Button("cmdClose"), Qt::LeftButton);
  EXPECT_EQ(platform.process.Ends(), 1);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(MainWindow, QueryUnloadShutsDownOnlyForAUsersClose) {
  int16_t cancel = 0;
  form->Form_QueryUnload(cancel, 1);
  EXPECT_EQ(platform.process.Ends(), 0);
  EXPECT_EQ(FindInLog(platform.log, "audio CloseMixer"), -1);
  form->Form_QueryUnload(cancel, kUnloadFormControlMenu);
  EXPECT_EQ(platform.process.Ends(), 1);
  EXPECT_NE(FindInLog(platform.log, "audio CloseMixer"), -1);
  EXPECT_EQ(cancel, 0);
}

}  // namespace
}  // namespace jeerbox::testing
