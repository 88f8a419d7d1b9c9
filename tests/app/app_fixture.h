// A started program on fake platform units: Main has run, the main window
// is up and active. Tear-down unloads whatever is left.
#pragma once

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/MMain.h"
#include "fake_platform.h"
#include "helpers/fake_file_system.h"
#include "platform/command_line.h"
#include "sound/FDMC.h"

namespace jeerbox::testing {

class StartedApp : public ::testing::Test {
 protected:
  void SetUp() override {
    SetCommandLineText("");
    Main();
    ASSERT_NE(MainForm(), nullptr);
    form = MainForm();
    QApplication::setActiveWindow(form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
  }
  void TearDown() override {
    ReleaseForms();
    gFDMC = nullptr;
  }

  template <typename T>
  T* Control(const char* name) {
    T* widget = form->findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  QPushButton* Button(const char* name) { return Control<QPushButton>(name); }

  FakeFileSystem files;
  FakePlatform platform;
  FJeerbox* form = nullptr;
};

}  // namespace jeerbox::testing
