// The Qt host units that can be tested in-process: message box lines, the
// command line, the instance lock, the clipboard.
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

TEST(QtMessageBox, EveryKindOfLineEndBecomesOneLineBreak) {
  EXPECT_EQ(MessageBoxText("a\r\rb"), "a\n\nb");
  EXPECT_EQ(MessageBoxText("a\r\nb\nc"), "a\nb\nc");
  EXPECT_EQ(MessageBoxText("caf\xE9 \x80"), QString::fromUtf8("café €"));
}

TEST(QtMessageBox, ShowsTitleTextAndTheIconOfItsKind) {
  struct Seen {
    QString title, text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
  };
  auto showAndDismiss = [](int icon) {
    Seen seen;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      seen = {box->windowTitle(), box->text(), box->icon()};
      box->button(QMessageBox::Ok)->click();
    });
    poll.start(10);
    QtMessageBox().MsgBox("One\r\rTwo", icon, "Jeerbox");
    return seen;
  };
  const Seen about = showAndDismiss(kIconInformation);
  EXPECT_EQ(about.title, "Jeerbox");
  EXPECT_EQ(about.text, "One\n\nTwo");
  EXPECT_EQ(about.icon, QMessageBox::Information);
  EXPECT_EQ(showAndDismiss(kIconExclamation).icon, QMessageBox::Warning);
}

TEST(QtProcess, CommandLineIsTheArgumentsAfterTheProgramNameJoinedByBlanks) {
  const char* none[] = {"jeerbox"};
  EXPECT_EQ(QtProcess(1, none, "t").CommandLine(), "");
  const char* some[] = {"jeerbox", "-platform", "offscreen", ""};
  EXPECT_EQ(QtProcess(4, some, "t").CommandLine(), "-platform offscreen ");
}

TEST(QtProcess, SecondHolderOfTheLockSeesAPreviousInstanceUntilTheFirstGoes) {
  const char* argv[] = {"jeerbox"};
  const std::string name = "jeerbox-test-" + std::to_string(::getpid());
  auto first = std::make_unique<QtProcess>(1, argv, name);
  EXPECT_FALSE(first->PrevInstance());
  EXPECT_FALSE(first->PrevInstance()) << "asking again doesn't find itself";
  EXPECT_TRUE(QtProcess(1, argv, name).PrevInstance());
  EXPECT_FALSE(QtProcess(1, argv, name + "-other").PrevInstance());
  first.reset();
  EXPECT_FALSE(QtProcess(1, argv, name).PrevInstance());
}

TEST(QtProcess, EachDisplayHasALockOfItsOwn) {
  const char* argv[] = {"jeerbox"};
  const std::string name = "jeerbox-display-test-" + std::to_string(::getpid());
  unsetenv("WAYLAND_DISPLAY");
  setenv("DISPLAY", ":91", 1);
  QtProcess first(1, argv, name);
  EXPECT_FALSE(first.PrevInstance());
  setenv("DISPLAY", ":92", 1);
  EXPECT_FALSE(QtProcess(1, argv, name).PrevInstance());
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
