// Test main for the window's tests: Qt's offscreen platform and a private
// runtime directory, set before QApplication exists.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <cstdlib>

#include "app/qt/fonts.h"

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  mkdir(JEERBOX_TEST_RUNTIME_DIR, 0700);
  chmod(JEERBOX_TEST_RUNTIME_DIR, 0700);
  setenv("XDG_RUNTIME_DIR", JEERBOX_TEST_RUNTIME_DIR, 1);
  ::testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  // The forms end the process through a seam; the test run must not end
  // because a dialog closed.
  QApplication::setQuitOnLastWindowClosed(false);
  jeerbox::LoadDialogFont();
  return RUN_ALL_TESTS();
}
