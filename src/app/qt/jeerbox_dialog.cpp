// The main window's layout. Positions come in twips, 15 to a pixel at
// 96 dpi; Qt's device-independent pixels scale them on high-dpi screens.
#include "app/qt/jeerbox_dialog.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <cmath>

#include "app/FJeerbox.h"
#include "app/qt/controls.h"
#include "platform/qt/qt_text.h"

// The pictures are compiled into this static library; a linker drops their
// registration unless something refers to it.
static void InitImages() { Q_INIT_RESOURCE(resources); }

namespace jeerbox {
namespace {

// An image of the program's own, read by the handler of its format alone: a
// reader left to detect the format, as a QIcon or QPixmap made from a file
// name is, loads every image plugin installed to ask each of them first.
QPixmap OwnImage(const char* path, const char* format) {
  QImageReader reader(QString::fromLatin1(path), format);
  reader.setAutoDetectImageFormat(false);
  return QPixmap::fromImage(reader.read());
}

const QColor kTeal(0, 128, 128);
const QColor kBandBlue(0, 153, 255);
const QColor kBandOutline(0, 64, 64);

int Px(int twips) { return static_cast<int>(std::lround(twips / 15.0)); }
QRect Twips(int left, int top, int width, int height) {
  return QRect(Px(left), Px(top), Px(width), Px(height));
}

QFont Tahoma(qreal points, bool bold = false, bool underline = false) {
  QFont font(QStringLiteral("Tahoma"));
  font.setPointSizeF(points);
  font.setBold(bold);
  font.setUnderline(underline);
  return font;
}

void SetTextColour(QWidget* widget, const QColor& colour) {
  QPalette palette = widget->palette();
  palette.setColor(QPalette::WindowText, colour);
  palette.setColor(QPalette::Text, colour);
  widget->setPalette(palette);
}

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption, QRect geometry) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setGeometry(geometry);
  return button;
}

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption, QRect geometry) {
  auto* label = new QLabel(caption, parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setGeometry(geometry);
  label->setAttribute(Qt::WA_TranslucentBackground);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  return label;
}

}  // namespace

JeerboxDialog::JeerboxDialog(FJeerbox& form, QWidget* parent) : QDialog(parent), mForm(form) {
  InitImages();
  setObjectName(QStringLiteral("FJeerbox"));
  setWindowTitle(ToQString(mForm.GetDeployment().productDomain));
  setWindowIcon(QIcon(OwnImage(":/images/jeerbox_icon.xpm", "xpm")));
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
  setFixedSize(Px(6660), Px(5205));
  setSizeGripEnabled(false);
  setFont(Tahoma(8.25));
  QPalette palette = this->palette();
  palette.setColor(QPalette::Window, Qt::white);
  setPalette(palette);
  setAutoFillBackground(true);
  BuildControls();
}

JeerboxDialog::~JeerboxDialog() = default;

// Made back to front, so each control lies on top of those made before it.
void JeerboxDialog::BuildControls() {
  shpBG = new CShape(this, kBandOutline, 1, kBandBlue);
  shpBG->setObjectName(QStringLiteral("shpBG"));
  shpBG->setGeometry(Twips(-270, 4080, 7215, 1575));

  imgSponsoredBy = new CImage(this);
  imgSponsoredBy->setObjectName(QStringLiteral("imgSponsoredBy"));
  imgSponsoredBy->setGeometry(Twips(120, 4200, 6435, 660));
  imgSponsoredBy->setPixmap(OwnImage(":/images/sponsor_banner.gif", "gif"));
  imgSponsoredBy->setCursor(QCursor(OwnImage(":/images/hand_cursor.xpm", "xpm"), 5, 0));
  connect(imgSponsoredBy, &CImage::Click, this, [this] { mForm.imgSponsoredBy_Click(); });

  lblSponsoredBy = MakeLabel(this, "lblSponsoredBy",
                             QStringLiteral("Sponsored by: ") + ToQString(mForm.GetDeployment().sponsorHost),
                             Twips(120, 4920, 6435, 210));
  lblSponsoredBy->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  SetTextColour(lblSponsoredBy, Qt::white);

  lblHelp =
      MakeLabel(this, "lblHelp",
                QStringLiteral("Jeerbox will generate offensive insults for you on demand. Never again be "
                               "stuck for a cutting remark! Please show your support for this FREE product "
                               "by visiting our sponsor's website. Jeerbox contains no spyware or malware "
                               "of any kind"),
                Twips(150, 480, 6375, 855));
  lblHelp->setWordWrap(true);
  lblHelp->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  SetTextColour(lblHelp, kTeal);

  shpBorder = new CShape(this, kTeal, 2);
  shpBorder->setObjectName(QStringLiteral("shpBorder"));
  shpBorder->setGeometry(Twips(150, 1200, 6375, 2295));

  lblTitle = MakeLabel(this, "lblTitle", QStringLiteral("Thank you for using Jeerbox - by Hollowmere"),
                       Twips(150, 120, 4965, 210));
  lblTitle->setFont(Tahoma(9, true, true));
  SetTextColour(lblTitle, kTeal);
  lblTitle->adjustSize();  // sized to its text

  txtInsult = new CTextBox(this);
  txtInsult->setObjectName(QStringLiteral("txtInsult"));
  txtInsult->setGeometry(Twips(263, 1320, 6135, 2055));
  txtInsult->setFont(Tahoma(9.75, true));
  txtInsult->setFocusPolicy(Qt::ClickFocus);  // no tab stop
  txtInsult->setFrameShape(QFrame::NoFrame);
  QPalette textPalette = txtInsult->palette();
  textPalette.setColor(QPalette::Base, Qt::white);
  textPalette.setColor(QPalette::Text, kTeal);
  txtInsult->setPalette(textPalette);
  txtInsult->SetText("Click \"Insult me\" to generate an insult\r\n");

  cmdAbout = MakeButton(this, "cmdAbout", QStringLiteral("About..."), Twips(4223, 3600, 1095, 375));
  cmdClose = MakeButton(this, "cmdClose", QStringLiteral("Close"), Twips(5423, 3600, 1095, 375));
  cmdInsult = MakeButton(this, "cmdInsult", QStringLiteral("Insult me"), Twips(3023, 3600, 1095, 375));
  cmdCopy = MakeButton(this, "cmdCopy", QStringLiteral("Copy"), Twips(120, 3600, 855, 375));
  cmdCopy->setToolTip(QStringLiteral("Copy insult to clipboard"));
  cmdInsult->setDefault(true);
  connect(cmdAbout, &QPushButton::clicked, this, [this] { mForm.cmdAbout_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { mForm.cmdClose_Click(); });
  connect(cmdInsult, &QPushButton::clicked, this, [this] { mForm.cmdInsult_Click(); });
  connect(cmdCopy, &QPushButton::clicked, this, [this] { mForm.cmdCopy_Click(); });

  setTabOrder(cmdInsult, cmdAbout);
  setTabOrder(cmdAbout, cmdClose);
  setTabOrder(cmdClose, txtInsult);
  setTabOrder(txtInsult, cmdCopy);
  cmdInsult->setFocus();
}

// Centred once shown, when the frame the window manager adds is known.
void JeerboxDialog::Show() {
  show();
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect frame = frameGeometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
  }
  cmdInsult->setFocus();
}

void JeerboxDialog::SetInsultText(const std::string& text) { txtInsult->SetText(text); }

std::string JeerboxDialog::InsultText() const { return txtInsult->Text(); }

void JeerboxDialog::SetCopyEnabled(bool enabled) { cmdCopy->setEnabled(enabled); }

void JeerboxDialog::closeEvent(QCloseEvent* event) {
  if (mForm.WindowClosing())
    event->accept();
  else
    event->ignore();
}

void JeerboxDialog::reject() { cmdClose->click(); }

}  // namespace jeerbox
