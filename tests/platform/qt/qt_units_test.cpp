// The Qt host units that can be tested in-process: message boxes, the
// instance lock, the clipboard.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTimer>
#include <cstdlib>

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

// Each desktop session has its own lock. (A second copy refused, a killed
// one leaving no lock, and the command line warned about are the end-to-end
// test's; here only what the process gives as its command line.)
TEST(QtProcess, EachDisplayHasALockOfItsOwn) {
  const char* argv[] = {"jeerbox"};
  const std::string name = "jeerbox-test-" + std::to_string(::getpid());
  unsetenv("WAYLAND_DISPLAY");
  setenv("DISPLAY", ":91", 1);
  QtProcess first(1, argv, name);
  EXPECT_FALSE(first.PrevInstance());
  setenv("DISPLAY", ":92", 1);
  const char* withArguments[] = {"jeerbox", "-x", "y"};
  QtProcess second(3, withArguments, name);
  EXPECT_FALSE(second.PrevInstance());
  EXPECT_EQ(second.CommandLine(), "-x y");
  setenv("DISPLAY", ":91", 1);
  EXPECT_TRUE(QtProcess(1, argv, name).PrevInstance());
  unsetenv("DISPLAY");
}

TEST(QtClipboard, PutsTheDecodedTextOnTheClipboard) {
  QtClipboard().SetText("Knave \x80\r");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("Knave €\r"));
}

}  // namespace
}  // namespace jeerbox
