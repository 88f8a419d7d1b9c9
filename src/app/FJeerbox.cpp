// The main window's layout and events. Positions come in twips, 15 to a
// pixel at 96 dpi; Qt's device-independent pixels scale them on high-dpi
// screens.
#include "app/FJeerbox.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <climits>
#include <cmath>

#include "app/MMain.h"
#include "app/app_services.h"
#include "app/controls.h"
#include "compose/MJeerbox.h"
#include "platform/clipboard.h"
#include "platform/internet.h"
#include "platform/message_box.h"
#include "platform/shell.h"
#include "platform/windows_1252.h"
#include "sound/MSounds.h"
#include "support/globals.h"

// The pictures are compiled into this static library; a linker drops their
// registration unless something refers to it.
static void InitImages() { Q_INIT_RESOURCE(resources); }

namespace jeerbox {
namespace {

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

// INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_KEEP_CONNECTION
constexpr uint32_t kConnectionTestFlags = 0x84400000u;
static_assert(kConnectionTestFlags ==
              (INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_KEEP_CONNECTION));

}  // namespace

FJeerbox::FJeerbox(const Deployment& deployment, QWidget* parent)
    : QDialog(parent), mDeployment(deployment), mInsultSource(GenerateInsult) {
  InitImages();
  setObjectName(QStringLiteral("FJeerbox"));
  setWindowTitle(DecodeWindows1252(mDeployment.productDomain));
  setWindowIcon(QIcon(QStringLiteral(":/images/jeerbox_icon.xpm")));
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

FJeerbox::~FJeerbox() = default;

// Made back to front, so each control lies on top of those made before it.
void FJeerbox::BuildControls() {
  shpBG = new CShape(this, kBandOutline, 1, kBandBlue);
  shpBG->setObjectName(QStringLiteral("shpBG"));
  shpBG->setGeometry(Twips(-270, 4080, 7215, 1575));

  imgSponsoredBy = new CImage(this);
  imgSponsoredBy->setObjectName(QStringLiteral("imgSponsoredBy"));
  imgSponsoredBy->setGeometry(Twips(120, 4200, 6435, 660));
  imgSponsoredBy->setPixmap(QPixmap(QStringLiteral(":/images/sponsor_banner.gif")));
  imgSponsoredBy->setCursor(QCursor(QPixmap(QStringLiteral(":/images/hand_cursor.xpm")), 5, 0));
  connect(imgSponsoredBy, &CImage::Click, this, [this] { imgSponsoredBy_Click(); });

  lblSponsoredBy = MakeLabel(this, "lblSponsoredBy",
                             QStringLiteral("Sponsored by: ") + DecodeWindows1252(mDeployment.sponsorHost),
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
  txtInsult->SetText(QStringLiteral("Click \"Insult me\" to generate an insult\r\n"));

  cmdAbout = MakeButton(this, "cmdAbout", QStringLiteral("About..."), Twips(4223, 3600, 1095, 375));
  cmdClose = MakeButton(this, "cmdClose", QStringLiteral("Close"), Twips(5423, 3600, 1095, 375));
  cmdInsult = MakeButton(this, "cmdInsult", QStringLiteral("Insult me"), Twips(3023, 3600, 1095, 375));
  cmdCopy = MakeButton(this, "cmdCopy", QStringLiteral("Copy"), Twips(120, 3600, 855, 375));
  cmdCopy->setToolTip(QStringLiteral("Copy insult to clipboard"));
  cmdInsult->setDefault(true);
  connect(cmdAbout, &QPushButton::clicked, this, [this] { cmdAbout_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
  connect(cmdInsult, &QPushButton::clicked, this, [this] { cmdInsult_Click(); });
  connect(cmdCopy, &QPushButton::clicked, this, [this] { cmdCopy_Click(); });

  setTabOrder(cmdInsult, cmdAbout);
  setTabOrder(cmdAbout, cmdClose);
  setTabOrder(cmdClose, txtInsult);
  setTabOrder(txtInsult, cmdCopy);
  cmdInsult->setFocus();
}

void FJeerbox::Setup() {
  mInsultCount = 0;
  UpdateButtons();
}

// Centred once shown, when the frame the window manager adds is known.
void FJeerbox::Start() {
  show();
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect frame = frameGeometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
  }
  cmdInsult->setFocus();
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

void FJeerbox::cmdAbout_Click() { Services().messageBox->MsgBox(AboutText(), kIconInformation, kAppTitle); }

void FJeerbox::cmdClose_Click() { ShutdownApp(); }

void FJeerbox::cmdCopy_Click() { Services().clipboard->SetText(txtInsult->Text()); }

void FJeerbox::cmdInsult_Click() {
  txtInsult->SetText(DecodeWindows1252(mInsultSource()));
  PlaySoundFX("misc_laugh");
  // Only being above 0 matters; the count stops rather than wrap negative.
  if (mInsultCount < INT16_MAX) ++mInsultCount;
  UpdateButtons();
}

void FJeerbox::Form_QueryUnload(int16_t& cancelFlag, int16_t unloadReason) {
  (void)cancelFlag;  // never set: the window always closes
  if (unloadReason == kUnloadFormControlMenu) ShutdownApp();
}

void FJeerbox::imgSponsoredBy_Click() { TryURL(mDeployment.sponsorHomeUrl); }

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

void FJeerbox::UpdateButtons() { cmdCopy->setEnabled(mInsultCount > 0); }

void FJeerbox::Unload() {
  mUnloadRequested = true;
  close();  // refused while a close is already under way; that close goes on
  mUnloadRequested = false;
}

void FJeerbox::closeEvent(QCloseEvent* event) {
  int16_t cancel = 0;
  Form_QueryUnload(cancel, mUnloadRequested ? kUnloadFormCode : kUnloadFormControlMenu);
  if (cancel != 0) {
    event->ignore();
    return;
  }
  event->accept();
  if (mFormId != 0) ForgetForm(mFormId);
  mFormId = 0;
}

// Escape presses the cancel button.
void FJeerbox::reject() { cmdClose->click(); }

}  // namespace jeerbox
