// The program flow on a platform of fakes: Main and ShutdownApp (the order
// of the start, the refusal of a second copy, the command-line warning, the
// orderly end by every route) and the main form's handlers (the sentence
// shown and copied byte for byte, the Copy button, the laugh, the about
// box, the banner's connection test).
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "app/FJeerbox.h"
#include "app/MForms.h"
#include "app/MMain.h"
#include "fake_platform.h"
#include "helpers/fake_file_system.h"
#include "sound/FDMC.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"

namespace jeerbox::testing {
namespace {

class Flow : public ::testing::Test {
 protected:
  void TearDown() override {
    ReleaseForms();
    gFDMC = nullptr;
  }
  void Start() {
    Main();
    form = MainForm();
    view = MainView();
    files.Write(kLaugh, "RIFF");
  }
  size_t Laughs() const { return platform.audio.Matching("LoadChannel(" + kLaugh + ")").size(); }
  static EventLog Loaded() {
    EventLog names;
    for (FormId id : LoadedForms()) names.push_back(FormName(id));
    return names;
  }

  const std::string kLaugh = "C:\\Program Files\\Jeerbox\\Media\\misc_laugh.wav";
  FakeFileSystem files;
  FakePlatform platform;
  FJeerbox* form = nullptr;
  RecordingView* view = nullptr;
};

TEST_F(Flow, SecondCopyIsRefusedWithTheMessageAndNothingStarts) {
  platform.previousInstance = true;
  Main();
  EXPECT_EQ(platform.Log(), (EventLog{"message", "end"}));
  EXPECT_EQ(platform.shown[0], std::make_pair(PreviousInstanceText(), kIconExclamation));
  EXPECT_EQ(MainForm(), nullptr);
  EXPECT_EQ(gFDMC, nullptr);
}

TEST_F(Flow, StartSetsTheValuesThenAudioThenTheWindowWithCopyOff) {
  gAllowMarkedText = false;
  Start();
  EXPECT_EQ(gAppPath, platform.ExecutableDirectory());
  EXPECT_TRUE(gAllowMarkedText);
  const EventLog log = platform.Log();
  ASSERT_EQ(log.size(), 3u);
  EXPECT_EQ(log[0], "ResetMixer");
  EXPECT_EQ(log[1].rfind("OpenMixer", 0), 0u);
  EXPECT_EQ(log[2], "show") << "audio is up before the window";
  EXPECT_FALSE(view->copyEnabled) << "the start text must never reach the clipboard";
  EXPECT_EQ(Loaded(), (EventLog{"FDMC", "FJeerbox"}));
}

TEST_F(Flow, CommandLineOfAnythingButBlanksIsWarnedAboutFirstThenStartGoesOn) {
  const std::pair<const char*, EventLog> cases[] = {
      {"", {}}, {"   ", {}}, {" -platform offscreen ", {"message"}}};
  for (const auto& [commandLine, warned] : cases) {
    SCOPED_TRACE(commandLine);
    FakePlatform fresh;
    fresh.commandLine = commandLine;
    Main();
    const EventLog log = fresh.Log();
    EXPECT_EQ(EventLog(log.begin(), log.end() - 3), warned);
    EXPECT_EQ(log.back(), "show");
    ReleaseForms();
    gFDMC = nullptr;
  }
}

// After the user asks to close: audio shut down, the audio form unloaded,
// the main form unloaded (an unload the program asks for shuts nothing down
// again), and only then the end. From the title bar the window is already
// closing, so the nested unload is refused and the end comes while it is
// still up.
TEST_F(Flow, CloseButtonAndTitleBarShutDownAudioThenFormsThenEnd) {
  const std::pair<void (*)(), const char*> cases[] = {
      {[] { MainForm()->cmdClose_Click(); }, "end"},
      {[] { EXPECT_TRUE(MainView()->CloseWindow()); }, "end (window still up)"},
  };
  for (const auto& [close, end] : cases) {
    SCOPED_TRACE(end);
    FakePlatform fresh;
    Main();
    close();
    EventLog expected = {"ResetMixer"};
    for (const std::string& call : SweepCalls()) expected.push_back(call);
    for (const char* call : {"CloseMusic", "CloseMixer", "ResetMixer", end}) expected.emplace_back(call);
    const EventLog log = fresh.Log();
    EXPECT_EQ(EventLog(std::find(log.begin(), log.end(), "show") + 1, log.end()), expected);
    EXPECT_FALSE(MainView()->visible);
    EXPECT_EQ(gFDMC, nullptr);
    EXPECT_TRUE(Loaded().empty());
    ReleaseForms();
  }
}

TEST_F(Flow, FormsOtherThanTheMainFormAreUnloadedByTheWalkAndTheRestAtTheEnd) {
  Start();
  auto unloaded = std::make_shared<EventLog>();
  for (const char* name : {"FOther", "FWait"})
    LoadForm(name, [unloaded, name] { unloaded->push_back(name); });
  ShutdownApp();
  EXPECT_EQ(*unloaded, (EventLog{"FOther"}));
  EXPECT_EQ(Loaded(), (EventLog{"FWait"}));
  ReleaseForms();  // at the very end, every form still loaded goes
  EXPECT_EQ(*unloaded, (EventLog{"FOther", "FWait"}));
}

// Windows-1252 bytes, a stray CR and a trailing blank; a sentence that
// can't be made is the fixed line, and the press goes on.
TEST_F(Flow, EachPressShowsItsSentencePlaysALaughAndCopyTakesItByteForByte) {
  Start();
  const std::string sentences[] = {"Nitwit.", "Caf\xE9 \x93lout\x94 \x80\x85\rnitwit ", kMissingFilesText};
  for (const std::string& sentence : sentences) {
    form->SetInsultSource([sentence]() -> std::string {
      if (sentence == kMissingFilesText) throw std::bad_alloc();
      return sentence;
    });
    form->cmdInsult_Click();
    EXPECT_EQ(view->InsultText(), sentence);
    EXPECT_TRUE(view->copyEnabled);
    form->cmdCopy_Click();
    EXPECT_EQ(platform.copies.back(), sentence);
  }
  EXPECT_EQ(Laughs(), 3u);
}

TEST_F(Flow, CountStopsAtItsLimitInsteadOfTurningCopyOff) {
  Start();
  files.Remove(kLaugh);
  form->SetInsultSource([] { return std::string("x"); });
  for (int i = 0; i < 32768; ++i) form->cmdInsult_Click();
  EXPECT_EQ(form->InsultCount(), 32767);
  EXPECT_TRUE(view->copyEnabled);
}

TEST_F(Flow, AboutBoxNamesTheDeploymentsSiteAndAddress) {
  Start();
  form->cmdAbout_Click();
  ASSERT_EQ(platform.shown.size(), 1u);
  const auto& [text, icon] = platform.shown[0];
  const Deployment d = BuiltInDeployment();
  for (const std::string& part : {d.productSiteUrl + "\r\r", d.sponsorsAddress + "\r\r"})
    EXPECT_NE(text.find(part), std::string::npos) << part;
  EXPECT_EQ(text.substr(text.size() - d.noticeLine.size()), d.noticeLine);
  EXPECT_EQ(icon, kIconInformation);
}

// The banner tests the maker's host, not the sponsor's, each click anew,
// then opens the sponsor's page, or says why it can't, with its URL.
TEST_F(Flow, BannerOpensTheSponsorOnlyWhenTheMakersHostAnswers) {
  Start();
  const Deployment d = BuiltInDeployment();
  const std::string testUrl = "http://" + d.testHost + "/connectiontest.html";
  const struct {
    bool sessionOpens, hostAnswers;
    EventLog urls;
  } cases[] = {{true, true, {testUrl, testUrl}}, {true, false, {testUrl, testUrl}}, {false, true, {}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(c.sessionOpens) + std::to_string(c.hostAnswers));
    FakePlatform fresh;
    fresh.sessionOpens = c.sessionOpens;
    fresh.hostAnswers = c.hostAnswers;
    form->imgSponsoredBy_Click();
    form->imgSponsoredBy_Click();
    EXPECT_EQ(fresh.urls, c.urls);
    EXPECT_EQ(fresh.openHandles, 0) << "every handle opened is closed";
    const bool answered = c.sessionOpens && c.hostAnswers;
    EXPECT_EQ(fresh.opened.size(), answered ? 2u : 0u);
    EXPECT_EQ(fresh.shown.size(), answered ? 0u : 2u);
    for (const std::string& url : fresh.opened) EXPECT_EQ(url, d.sponsorHomeUrl);
    for (const auto& [text, icon] : fresh.shown) {
      EXPECT_EQ(text.rfind(d.sponsorHomeUrl + "\r\r", 0), 0u);
      EXPECT_EQ(icon, kIconExclamation);
    }
  }
}

}  // namespace
}  // namespace jeerbox::testing
