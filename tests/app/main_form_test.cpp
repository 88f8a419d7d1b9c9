// The main form's handlers on a recording face: the sentence shown and
// copied byte for byte, the Copy button's state, the laugh, the about box,
// the unload reasons, and the banner's connection test.
#include <gtest/gtest.h>

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

class MainForm : public ::testing::Test {
 protected:
  void SetUp() override {
    Main();
    form = jeerbox::MainForm();
    view = MainView();
    ASSERT_NE(view, nullptr);
  }
  void TearDown() override {
    ReleaseForms();
    gFDMC = nullptr;
  }
  void Say(const std::string& sentence) {
    form->SetInsultSource([sentence] { return sentence; });
    form->cmdInsult_Click();
  }

  FakeFileSystem files;
  FakePlatform platform;
  FJeerbox* form = nullptr;
  RecordingView* view = nullptr;
};

TEST_F(MainForm, CopyIsOffUntilTheFirstSentenceSoTheStartTextNeverReachesTheClipboard) {
  EXPECT_FALSE(view->copyEnabled);
  Say("Nitwit.");
  EXPECT_TRUE(view->copyEnabled);
  Say("Dolt.");
  EXPECT_TRUE(view->copyEnabled);
  EXPECT_EQ(form->InsultCount(), 2);
}

TEST_F(MainForm, SentenceIsShownAndCopiedByteForByte) {
  // Windows-1252 bytes, a stray CR and a trailing blank.
  const std::string sentence = "Caf\xE9 \x93lout\x94 \x80\x85\rnitwit ";
  Say(sentence);
  EXPECT_EQ(view->InsultText(), sentence);
  form->cmdCopy_Click();
  form->cmdCopy_Click();
  EXPECT_EQ(platform.clipboard.copies, (std::vector<std::string>{sentence, sentence}));
}

TEST_F(MainForm, EachSentenceReplacesTheLastAndPlaysALaugh) {
  files.Write(gAppPath + "\\Media\\misc_laugh.wav", "RIFF");
  for (const char* sentence : {"One", "Two", "Three"}) Say(sentence);
  EXPECT_EQ(view->InsultText(), "Three");
  int laughs = 0;
  for (const std::string& entry : platform.log)
    laughs += entry == "audio LoadChannel " + gAppPath + "\\Media\\misc_laugh.wav";
  EXPECT_EQ(laughs, 3);
}

TEST_F(MainForm, ASentenceThatCantBeMadeIsTheFixedLineAndThePressGoesOn) {
  files.Write(gAppPath + "\\Media\\misc_laugh.wav", "RIFF");
  form->SetInsultSource([]() -> std::string { throw std::bad_alloc(); });
  form->cmdInsult_Click();
  EXPECT_EQ(view->InsultText(), kMissingFilesText);
  EXPECT_NE(FindInLog(platform.log, "audio LoadChannel " + gAppPath + "\\Media\\misc_laugh.wav"), -1);
  EXPECT_TRUE(view->copyEnabled);
}

TEST_F(MainForm, CountStopsAtItsLimitInsteadOfTurningCopyOff) {
  form->SetInsultSource([] { return std::string("x"); });
  for (int i = 0; i < 32768; ++i) form->cmdInsult_Click();
  EXPECT_EQ(form->InsultCount(), 32767);
  EXPECT_TRUE(view->copyEnabled);
}

TEST_F(MainForm, AboutBoxTellsWhoMadeIt) {
  form->cmdAbout_Click();
  ASSERT_EQ(platform.messageBox.shown.size(), 1u);
  const ShownMessage& about = platform.messageBox.shown[0];
  const Deployment d = BuiltInDeployment();
  EXPECT_EQ(about.text,
            "Jeerbox was developed by Hollowmere for fun and shouldn't be taken seriously by anyone!\r\r"
            "Jeerbox is FREE and can be distributed to anyone using the FREE installation tool which is "
            "available for download at " +
                d.productSiteUrl + "\r\r" +
                "If you are interested in sponsoring a copy to promote your business then contact us at " +
                d.sponsorsAddress + "\r\r" + d.noticeLine);
  EXPECT_EQ(about.icon, kIconInformation);
  EXPECT_EQ(about.title, "Jeerbox");
}

TEST_F(MainForm, QueryUnloadShutsDownOnlyForAUsersClose) {
  int16_t cancel = 0;
  form->Form_QueryUnload(cancel, kUnloadFormCode);
  EXPECT_EQ(platform.process.Ends(), 0);
  EXPECT_EQ(FindInLog(platform.log, "audio CloseMixer"), -1);
  form->Form_QueryUnload(cancel, kUnloadFormControlMenu);
  EXPECT_EQ(platform.process.Ends(), 1);
  EXPECT_NE(FindInLog(platform.log, "audio CloseMixer"), -1);
  EXPECT_EQ(cancel, 0);
}

// The banner tests the maker's host, not the sponsor's, then opens the
// sponsor's page, or says why it can't, with the sponsor's URL.
TEST_F(MainForm, BannerTestsTheMakersHostPastAnyCacheThenOpensTheSponsor) {
  const Deployment d = BuiltInDeployment();
  form->imgSponsoredBy_Click();
  EXPECT_EQ(platform.internet.calls,
            (std::vector<std::string>{
                "open agent=Jeerbox access=0 proxy=none bypass=none flags=0",
                "url http://" + d.testHost + "/connectiontest.html headers=none/0 flags=0x84400000 context=0",
                "close request", "close session"}));
  ASSERT_EQ(platform.shell.opened.size(), 1u);
  const OpenedDocument& opened = platform.shell.opened[0];
  EXPECT_EQ(opened.owner, nullptr);
  EXPECT_EQ(opened.operation, "open");
  EXPECT_EQ(opened.file, d.sponsorHomeUrl);
  EXPECT_EQ(opened.parameters, "");
  EXPECT_EQ(opened.directory, "");
  EXPECT_EQ(opened.showCommand, SW_HIDE);
  EXPECT_TRUE(platform.messageBox.shown.empty());
  form->imgSponsoredBy_Click();
  EXPECT_EQ(platform.shell.opened.size(), 2u) << "each click tests anew";
  EXPECT_EQ(platform.internet.openHandles, 0);
}

TEST_F(MainForm, BannerWithoutAnAnswerExplainsAndOpensNothing) {
  struct Case {
    const char* name;
    bool sessionOpens;
    bool hostAnswers;
  };
  for (const Case& c : {Case{"no answer", true, false}, Case{"no session", false, true}}) {
    SCOPED_TRACE(c.name);
    FakePlatform fresh;
    fresh.internet.sessionOpens = c.sessionOpens;
    fresh.internet.hostAnswers = c.hostAnswers;
    form->imgSponsoredBy_Click();
    ASSERT_EQ(fresh.messageBox.shown.size(), 1u);
    EXPECT_EQ(
        fresh.messageBox.shown[0].text,
        BuiltInDeployment().sponsorHomeUrl +
            "\r\r"
            "You don't appear to have an internet connection or the URL is unavailable. "
            "You must have an active internet connection to perform the requested operation. "
            "If you do have a connection then the URL may be unavailable and you should try again later");
    EXPECT_EQ(fresh.messageBox.shown[0].icon, kIconExclamation);
    EXPECT_EQ(fresh.messageBox.shown[0].title, "Jeerbox");
    EXPECT_TRUE(fresh.shell.opened.empty());
    EXPECT_EQ(fresh.internet.openHandles, 0) << "every handle opened is closed";
  }
}

}  // namespace
}  // namespace jeerbox::testing
