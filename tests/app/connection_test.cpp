// The connection test before the browser opens, against a real HTTP server
// on 127.0.0.1: any answer counts, silence and refusal don't.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <chrono>

#include "app/FJeerbox.h"
#include "fake_platform.h"
#include "http_test_server.h"
#include "platform/internet_curl.h"
#include "platform/message_box.h"

namespace jeerbox::testing {
namespace {

constexpr uint32_t kTestFlags =
    INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_KEEP_CONNECTION;

// One InternetOpenA / InternetOpenUrlA / InternetCloseHandle round.
bool Answered(CurlInternet& net, const std::string& url) {
  HINTERNET session = net.InternetOpenA("Jeerbox", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0);
  EXPECT_NE(session, nullptr);
  HINTERNET request = net.InternetOpenUrlA(session, url.c_str(), nullptr, 0, kTestFlags, 0);
  if (request) net.InternetCloseHandle(request);
  net.InternetCloseHandle(session);
  return request != nullptr;
}

std::string TestUrl(const std::string& hostAndPort) {
  return "http://" + hostAndPort + "/connectiontest.html";
}

TEST(CurlInternet, AnyHttpAnswerCountsWhateverItsStatus) {
  CurlInternet net(2000, 2000);
  for (int status : {200, 301, 404, 500}) {
    HttpTestServer server(HttpTestServer::Mode::kAnswer, HttpReply(status, "Whatever", "body"));
    EXPECT_TRUE(Answered(net, TestUrl(server.HostAndPort()))) << status;
  }
}

TEST(CurlInternet, AsksPastAnyCacheAsJeerboxAndFollowsNoRedirect) {
  CurlInternet net(2000, 2000);
  HttpTestServer server(HttpTestServer::Mode::kAnswer,
                        "HTTP/1.1 302 Found\r\nLocation: /elsewhere\r\nContent-Length: 0\r\n\r\n");
  ASSERT_TRUE(Answered(net, TestUrl(server.HostAndPort())));
  const auto requests = server.Requests();
  ASSERT_EQ(requests.size(), 1u);
  const std::string& head = requests[0];
  EXPECT_EQ(head.rfind("GET /connectiontest.html HTTP/1.1\r\n", 0), 0u) << head;
  EXPECT_NE(head.find("\r\nUser-Agent: Jeerbox\r\n"), std::string::npos) << head;
  EXPECT_NE(head.find("\r\nCache-Control: no-cache\r\n"), std::string::npos) << head;
  EXPECT_NE(head.find("\r\nPragma: no-cache\r\n"), std::string::npos) << head;
}

TEST(CurlInternet, RefusedSilentAndNonHttpServersAreNoAnswer) {
  CurlInternet net(500, 500);
  EXPECT_FALSE(Answered(net, TestUrl("127.0.0.1:" + std::to_string(HttpTestServer::ClosedPort()))));
  {
    HttpTestServer silent(HttpTestServer::Mode::kNeverAnswer);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Answered(net, TestUrl(silent.HostAndPort())));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3)) << "the time-out holds";
  }
  HttpTestServer babbler(HttpTestServer::Mode::kAnswer, "hello, not HTTP\n");
  EXPECT_FALSE(Answered(net, TestUrl(babbler.HostAndPort())));
}

TEST(CurlInternet, UrlWithoutASessionFails) {
  CurlInternet net;
  EXPECT_EQ(net.InternetOpenUrlA(nullptr, "http://127.0.0.1/", nullptr, 0, kTestFlags, 0), nullptr);
  EXPECT_FALSE(net.InternetCloseHandle(nullptr));
}

// The banner of a window whose maker's test host is `testHost`.
class Banner : public ::testing::Test {
 protected:
  void Show(const std::string& testHost) {
    Deployment deployment = BuiltInDeployment();
    deployment.sponsorHomeUrl = "http://www.sponsor.example.com";
    deployment.testHost = testHost;
    form = std::make_unique<FJeerbox>(deployment);
    form->Setup();
    form->Start();
  }
  void Click() { QTest::mouseClick(form->findChild<QLabel*>("imgSponsoredBy"), Qt::LeftButton); }
  void ExpectConnectionError() {
    ASSERT_EQ(platform.messageBox.shown.size(), 1u);
    EXPECT_EQ(platform.messageBox.shown[0].text,
              "http://www.sponsor.example.com\r\r"
              "You don't appear to have an internet connection or the URL is unavailable. "
              "You must have an active internet connection to perform the requested operation. "
              "If you do have a connection then the URL may be unavailable and you should try again later");
    EXPECT_EQ(platform.messageBox.shown[0].icon, kIconExclamation);
    EXPECT_EQ(platform.messageBox.shown[0].title, "Jeerbox");
    EXPECT_TRUE(platform.shell.opened.empty());
  }

  FakePlatform platform;
  std::unique_ptr<FJeerbox> form;
};

TEST_F(Banner, OpensTheSponsorAfterAnAnswerEvenA404AndTestsAnewEachClick) {
  HttpTestServer server(HttpTestServer::Mode::kAnswer, HttpReply(404, "Not Found"));
  Show(server.HostAndPort());
  Click();
  Click();
  EXPECT_EQ(server.Requests().size(), 2u);
  ASSERT_EQ(platform.shell.opened.size(), 2u);
  const OpenedDocument& opened = platform.shell.opened[0];
  EXPECT_EQ(opened.owner, nullptr);
  EXPECT_EQ(opened.operation, "open");
  EXPECT_EQ(opened.file, "http://www.sponsor.example.com");
  EXPECT_EQ(opened.parameters, "");
  EXPECT_EQ(opened.directory, "");
  EXPECT_EQ(opened.showCommand, SW_HIDE);
  EXPECT_TRUE(platform.messageBox.shown.empty());
}

TEST_F(Banner, ClosedPortShowsTheMessageWithTheSponsorsUrl) {
  Show("127.0.0.1:" + std::to_string(HttpTestServer::ClosedPort()));
  Click();
  ExpectConnectionError();
}

TEST_F(Banner, ServerThatNeverAnswersShowsTheMessage) {
  HttpTestServer silent(HttpTestServer::Mode::kNeverAnswer);
  Show(silent.HostAndPort());
  Click();
  ExpectConnectionError();
  EXPECT_EQ(silent.Requests().size(), 1u);
}

TEST_F(Banner, OnlyTheBannerReactsNotTheSponsorLine) {
  HttpTestServer server(HttpTestServer::Mode::kAnswer, HttpReply(200, "OK"));
  Show(server.HostAndPort());
  // What a click at a window position lands on, then a click there.
  const QPoint onLine = form->findChild<QLabel*>("lblSponsoredBy")->geometry().center();
  QWidget* underLine = form->childAt(onLine);
  QTest::mouseClick(underLine ? underLine : form.get(), Qt::LeftButton);
  EXPECT_TRUE(server.Requests().empty());
  const QPoint onBanner = form->findChild<QLabel*>("imgSponsoredBy")->geometry().center();
  QWidget* underBanner = form->childAt(onBanner);
  ASSERT_NE(underBanner, nullptr);
  EXPECT_EQ(underBanner->objectName(), "imgSponsoredBy");
  QTest::mouseClick(underBanner, Qt::LeftButton);
  EXPECT_EQ(server.Requests().size(), 1u);
  EXPECT_EQ(platform.shell.opened.size(), 1u);
}

}  // namespace
}  // namespace jeerbox::testing
