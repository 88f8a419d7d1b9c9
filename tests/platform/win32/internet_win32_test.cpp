// WinINet against a local HTTP server (its port in JEERBOX_TEST_HTTP_PORT;
// a 404 is an answer too) and a closed port (JEERBOX_TEST_CLOSED_PORT).
#include "platform/win32/internet_win32.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace jeerbox {
namespace {

constexpr uint32_t kTestFlags =
    INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_KEEP_CONNECTION;

std::string Port(const char* variable) {
  const char* value = std::getenv(variable);
  return value ? value : "";
}

TEST(Win32Internet, AnAnswerOfAnyKindCountsAndAClosedPortDoesnt) {
  const std::string answering = Port("JEERBOX_TEST_HTTP_PORT"), closed = Port("JEERBOX_TEST_CLOSED_PORT");
  if (answering.empty() || closed.empty()) GTEST_SKIP() << "needs the ports of with_http_server.sh";
  const struct {
    std::string port;
    bool answered;
  } cases[] = {{answering, true}, {closed, false}};
  Win32Internet net;
  for (const auto& c : cases) {
    HINTERNET session = net.InternetOpenA("Jeerbox", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0);
    ASSERT_NE(session, nullptr);
    const std::string url = "http://127.0.0.1:" + c.port + "/connectiontest.html";
    HINTERNET request = net.InternetOpenUrlA(session, url.c_str(), nullptr, 0, kTestFlags, 0);
    EXPECT_EQ(request != nullptr, c.answered) << url;
    if (request) {
      EXPECT_TRUE(net.InternetCloseHandle(request));
    }
    EXPECT_TRUE(net.InternetCloseHandle(session));
  }
  EXPECT_EQ(net.InternetOpenUrlA(nullptr, "http://127.0.0.1/", nullptr, 0, kTestFlags, 0), nullptr);
  EXPECT_FALSE(net.InternetCloseHandle(nullptr));
}

}  // namespace
}  // namespace jeerbox
