// The Internet calls on libcurl against a real HTTP server on 127.0.0.1:
// any answer counts, silence and refusal don't.
#include "platform/curl/internet_curl.h"

#include <gtest/gtest.h>

#include <chrono>

#include "http_test_server.h"

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

}  // namespace
}  // namespace jeerbox::testing
