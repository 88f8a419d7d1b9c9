// The Qt host units that can be tested in-process: message boxes, the
// command line, the clipboard.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTimer>

#include "platform/qt/clipboard_qt.h"
#include "platform/qt/message_box_qt.h"
#include "platform/qt/process_qt.h"

namespace jeerbox {
namespace {

TEST(QtMessageBox, ShowsTheTextWithOneBreakPerLineEndAndTheIconOfItsKind) {
  const struct {
    int icon;
    const char* text;
    QString shown;
    QMessageBox::Icon kind;
  } cases[] = {
      {kIconInformation, "a\r\rb\x80", QString::fromUtf8("a\n\nb€"), QMessageBox::Information},
      {kIconExclamation, "a\r\nb\nc", QStringLiteral("a\nb\nc"), QMessageBox::Warning},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    QString text;
    QMessageBox::Icon kind = QMessageBox::NoIcon;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      text = box->text();
      kind = box->icon();
      box->button(QMessageBox::Ok)->click();
    });
    poll.start(10);
    QtMessageBox().MsgBox(c.text, c.icon, "Jeerbox");
    EXPECT_EQ(text, c.shown);
    EXPECT_EQ(kind, c.kind);
  }
}

// The arguments joined by blanks. (The lock: a second copy refused, a
// killed one leaving none behind, is the end-to-end test's.)
TEST(QtProcess, CommandLineIsWhatFollowsTheProgramName) {
  const char* argv[] = {"jeerbox", "-x", "y"};
  EXPECT_EQ(QtProcess(3, argv, "jeerbox-test-" + std::to_string(::getpid())).CommandLine(), "-x y");
}

TEST(QtClipboard, PutsTheDecodedTextOnTheClipboard) {
  QtClipboard().SetText("Knave \x80\r");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("Knave €\r"));
}

}  // namespace
}  // namespace jeerbox
