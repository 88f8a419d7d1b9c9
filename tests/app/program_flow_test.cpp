// Main and ShutdownApp: the order of the start, the refusal of a second
// copy, the command-line warning, and the orderly end by every route.
#include <gtest/gtest.h>

#include <memory>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/MMain.h"
#include "fake_platform.h"
#include "helpers/fake_file_system.h"
#include "sound/FDMC.h"
#include "support/globals.h"

namespace jeerbox::testing {
namespace {

class ProgramFlow : public ::testing::Test {
 protected:
  void TearDown() override {
    ReleaseForms();
    gFDMC = nullptr;
  }

  // Names of the forms still loaded.
  static std::vector<std::string> Loaded() {
    std::vector<std::string> names;
    for (FormId id : LoadedForms()) names.push_back(FormName(id));
    return names;
  }
  EventLog LogFrom(size_t first) const {
    return EventLog(platform.log.begin() + static_cast<long>(first), platform.log.end());
  }

  FakeFileSystem files;
  FakePlatform platform;
};

TEST_F(ProgramFlow, SecondCopyIsRefusedWithTheMessageAndNothingStarts) {
  platform.process.previousInstance = true;
  Main();
  ASSERT_EQ(platform.messageBox.shown.size(), 1u);
  EXPECT_EQ(platform.messageBox.shown[0].text,
            "There is another copy of Jeerbox (or Jeerbox Configuration) currently running\r\r"
            "If you have just closed Jeerbox then you may need to wait for a few seconds before "
            "starting again");
  EXPECT_EQ(platform.messageBox.shown[0].icon, kIconExclamation);
  EXPECT_EQ(platform.messageBox.shown[0].title, "Jeerbox");
  EXPECT_TRUE(platform.process.Ended());
  EXPECT_EQ(MainForm(), nullptr);
  EXPECT_EQ(gFDMC, nullptr);
  EXPECT_EQ(FindInLog(platform.log, "audio"), -1);
}

TEST_F(ProgramFlow, StartSetsTheValuesThenAudioThenTheWindow) {
  gAllowMarkedText = false;
  Main();
  EXPECT_EQ(gAppPath, "C:\\Program Files\\Jeerbox");
  EXPECT_TRUE(gAllowMarkedText);
  EXPECT_TRUE(platform.messageBox.shown.empty());
  EXPECT_FALSE(platform.process.Ended());
  ASSERT_NE(gFDMC, nullptr);
  ASSERT_NE(MainView(), nullptr);
  EXPECT_TRUE(MainView()->visible);
  EXPECT_FALSE(MainView()->copyEnabled) << "Copy is off before the window is first seen";
  // Audio came up (the mixer opened) while no window was yet on screen.
  EXPECT_EQ(platform.log, (EventLog{"audio ResetMixer", "audio OpenMixer"}));
  EXPECT_EQ(Loaded(), (std::vector<std::string>{"FDMC", "FJeerbox"}));
}

TEST_F(ProgramFlow, CommandLineOfAnythingButBlanksIsWarnedAboutOnceThenStartGoesOn) {
  struct Case {
    const char* commandLine;
    bool warned;
  };
  const Case cases[] = {{"", false}, {"   ", false}, {"x", true}, {" -platform offscreen ", true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.commandLine);
    FakePlatform fresh;
    fresh.process.commandLine = c.commandLine;
    Main();
    if (c.warned) {
      ASSERT_EQ(fresh.messageBox.shown.size(), 1u);
      EXPECT_EQ(fresh.messageBox.shown[0].text, "Invalid command line ignored");
      EXPECT_EQ(fresh.messageBox.shown[0].icon, kIconExclamation);
      EXPECT_EQ(FindInLog(fresh.log, "message"), 0) << "the warning comes before audio";
    } else {
      EXPECT_TRUE(fresh.messageBox.shown.empty());
    }
    ASSERT_NE(MainView(), nullptr);
    EXPECT_TRUE(MainView()->visible);
    EXPECT_FALSE(fresh.process.Ended());
    ReleaseForms();
    gFDMC = nullptr;
  }
}

// After the user asks to close: audio shut down, the audio form unloaded,
// the main form unloaded, and only then the end. From the title bar the
// window is already closing, so the nested unload is refused and the end
// comes while it is still up.
void ExpectOrderlyEnd(const EventLog& tail, const std::string& end) {
  EXPECT_EQ(tail,
            (EventLog{"audio ResetMixer", "audio CloseMusic", "audio CloseMixer", "audio ResetMixer", end}));
}

TEST_F(ProgramFlow, CloseButtonShutsDownAudioThenFormsThenTheMainFormLast) {
  Main();
  const size_t start = platform.log.size();
  MainForm()->cmdClose_Click();
  ExpectOrderlyEnd(LogFrom(start), "end");
  EXPECT_EQ(gFDMC, nullptr);
  EXPECT_TRUE(Loaded().empty());
  EXPECT_EQ(platform.process.Ends(), 1);
}

TEST_F(ProgramFlow, TitleBarCloseBehavesLikeTheCloseButton) {
  Main();
  const size_t start = platform.log.size();
  EXPECT_TRUE(MainView()->CloseWindow());
  ExpectOrderlyEnd(LogFrom(start), "end (window still up)");
  EXPECT_FALSE(MainView()->visible);
  EXPECT_TRUE(Loaded().empty());
  EXPECT_EQ(platform.process.Ends(), 1);
}

TEST_F(ProgramFlow, AnUnloadTheProgramAsksForDoesNotShutDown) {
  Main();
  const size_t start = platform.log.size();
  MainForm()->Unload();
  EXPECT_FALSE(MainView()->visible);
  EXPECT_TRUE(LogFrom(start).empty());
  EXPECT_EQ(platform.process.Ends(), 0);
  EXPECT_EQ(Loaded(), (std::vector<std::string>{"FDMC"}));
  EXPECT_NE(gFDMC, nullptr);
}

TEST_F(ProgramFlow, FormsOtherThanTheMainFormAreUnloadedByTheWalk) {
  Main();
  auto unloaded = std::make_shared<std::vector<std::string>>();
  LoadForm("FOther", [unloaded] { unloaded->push_back("FOther"); });
  LoadForm("FWait", [unloaded] { unloaded->push_back("FWait"); });
  ShutdownApp();
  EXPECT_EQ(*unloaded, (std::vector<std::string>{"FOther"}));
  EXPECT_EQ(Loaded(), (std::vector<std::string>{"FWait"}));
}

}  // namespace
}  // namespace jeerbox::testing
