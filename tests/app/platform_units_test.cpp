// The window's platform units that can be tested in-process: 8-bit text,
// message box lines, the command line, the instance lock, the clipboard.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QTimer>
#include <cstdlib>

#include "platform/clipboard.h"
#include "platform/command_line.h"
#include "platform/message_box.h"
#include "platform/previous_instance.h"
#include "platform/windows_1252.h"

namespace jeerbox {
namespace {

TEST(Windows1252, EveryByteIsOneCharacterBothWays) {
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  const QString text = DecodeWindows1252(all);
  ASSERT_EQ(text.size(), 256);
  EXPECT_EQ(EncodeWindows1252(text), all);
  EXPECT_EQ(text[0x80], QChar(0x20AC));  // euro sign
  EXPECT_EQ(text[0x85], QChar(0x2026));  // ellipsis
  EXPECT_EQ(text[0x92], QChar(0x2019));  // right single quote
  EXPECT_EQ(text[0x9F], QChar(0x0178));  // Y with diaeresis
  EXPECT_EQ(text[0x81], QChar(0x0081));  // undefined in 1252
  EXPECT_EQ(text[0xE9], QChar(0x00E9));
  EXPECT_EQ(text[0x0D], QChar('\r'));
  EXPECT_EQ(EncodeWindows1252(QString::fromUtf8("\u4E00")), "?");
}

TEST(MessageBoxText, EveryKindOfLineEndBecomesOneLineBreak) {
  EXPECT_EQ(MessageBoxText("a\r\rb"), "a\n\nb");
  EXPECT_EQ(MessageBoxText("a\r\nb\nc"), "a\nb\nc");
  EXPECT_EQ(MessageBoxText("caf\xE9 "), QString::fromUtf8("café "));
}

struct SeenBox {
  QString title, text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  bool seen = false;
};

// Shows the box through QtMessageBox and notes what it showed, then presses OK.
SeenBox ShowAndDismiss(const std::string& text, int icon) {
  SeenBox seen;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    seen = {box->windowTitle(), box->text(), box->icon(), true};
    box->button(QMessageBox::Ok)->click();
  });
  poll.start(10);
  QtMessageBox().MsgBox(text, icon, "Jeerbox");
  return seen;
}

TEST(QtMessageBox, ShowsTitleTextWithLineBreaksAndTheIcon) {
  const SeenBox about = ShowAndDismiss("One\r\rTwo \x80", kIconInformation);
  ASSERT_TRUE(about.seen);
  EXPECT_EQ(about.title, "Jeerbox");
  EXPECT_EQ(about.text, QString::fromUtf8("One\n\nTwo €"));
  EXPECT_EQ(about.icon, QMessageBox::Information);
  const SeenBox warning = ShowAndDismiss("Invalid command line ignored", kIconExclamation);
  ASSERT_TRUE(warning.seen);
  EXPECT_EQ(warning.icon, QMessageBox::Warning);
}

TEST(CommandLine, ArgumentsAfterTheProgramNameJoinedByBlanks) {
  const char* none[] = {"jeerbox"};
  SetCommandLine(1, none);
  EXPECT_EQ(Command(), "");
  const char* some[] = {"jeerbox", "-platform", "offscreen", ""};
  SetCommandLine(4, some);
  EXPECT_EQ(Command(), "-platform offscreen ");
}

TEST(InstanceLock, SecondHolderOfTheNameSeesAPreviousInstanceUntilTheFirstGoes) {
  const std::string name = "jeerbox-test-" + std::to_string(::getpid());
  auto first = std::make_unique<LocalSocketInstanceLock>(name);
  EXPECT_FALSE(first->PrevInstance());
  EXPECT_FALSE(first->PrevInstance()) << "asking again doesn't find itself";
  LocalSocketInstanceLock second(name);
  EXPECT_TRUE(second.PrevInstance());
  LocalSocketInstanceLock otherProgram(name + "-other");
  EXPECT_FALSE(otherProgram.PrevInstance());
  first.reset();
  LocalSocketInstanceLock third(name);
  EXPECT_FALSE(third.PrevInstance());
}

TEST(InstanceLock, EachDisplayHasALockOfItsOwn) {
  const std::string name = "jeerbox-display-test-" + std::to_string(::getpid());
  unsetenv("WAYLAND_DISPLAY");
  setenv("DISPLAY", ":91", 1);
  LocalSocketInstanceLock first(name);
  EXPECT_FALSE(first.PrevInstance());
  setenv("DISPLAY", ":92", 1);
  LocalSocketInstanceLock otherDisplay(name);
  EXPECT_FALSE(otherDisplay.PrevInstance());
  setenv("DISPLAY", ":91", 1);
  LocalSocketInstanceLock sameDisplay(name);
  EXPECT_TRUE(sameDisplay.PrevInstance());
  unsetenv("DISPLAY");
}

TEST(QtClipboard, PutsPlainTextOnTheClipboard) {
  QtClipboard clipboard;
  clipboard.SetText(QStringLiteral("Knave \r"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "Knave \r");
}

}  // namespace
}  // namespace jeerbox
