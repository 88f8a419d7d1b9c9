// The Internet calls on libcurl against a real HTTP server on 127.0.0.1:
// any answer counts, refusal and babble don't; the request asks for the
// test page past any cache, as the agent it was given.
#include "platform/curl/internet_curl.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <thread>

namespace jeerbox::testing {
namespace {

// A socket bound to a free port on 127.0.0.1; connections to it are refused
// until it listens.
int BoundSocket(int* port) {
  const int fd = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof address;
  EXPECT_EQ(bind(fd, reinterpret_cast<sockaddr*>(&address), length), 0);
  getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
  *port = ntohs(address.sin_port);
  return fd;
}

// Takes one connection, keeps the request's head and answers with `reply`.
class OneShotServer {
 public:
  explicit OneShotServer(const std::string& reply) : mListener(BoundSocket(&port)) {
    listen(mListener, 1);
    mThread = std::thread([this, reply] {
      pollfd listener{mListener, POLLIN, 0};
      if (poll(&listener, 1, 5000) <= 0) return;
      const int client = accept(mListener, nullptr, nullptr);
      char buffer[4096];
      ssize_t n = 0;
      while (mHead.find("\r\n\r\n") == std::string::npos && (n = read(client, buffer, sizeof buffer)) > 0)
        mHead.append(buffer, static_cast<size_t>(n));
      if (write(client, reply.data(), reply.size()) < 0) mHead += "(client gone)";
      close(client);
    });
  }
  ~OneShotServer() {
    Head();
    close(mListener);
  }
  OneShotServer(const OneShotServer&) = delete;
  OneShotServer& operator=(const OneShotServer&) = delete;
  const std::string& Head() {
    if (mThread.joinable()) mThread.join();
    return mHead;
  }
  int port = 0;

 private:
  int mListener;
  std::string mHead;
  std::thread mThread;
};

// One InternetOpenA / InternetOpenUrlA / InternetCloseHandle round.
bool Answered(int port) {
  CurlInternet net(2000, 2000);
  HINTERNET session = net.InternetOpenA("Jeerbox", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0);
  EXPECT_NE(session, nullptr);
  const std::string url = "http://127.0.0.1:" + std::to_string(port) + "/connectiontest.html";
  HINTERNET request = net.InternetOpenUrlA(session, url.c_str(), nullptr, 0,
                                           INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE, 0);
  EXPECT_TRUE(!request || net.InternetCloseHandle(request));
  EXPECT_TRUE(net.InternetCloseHandle(session));
  return request != nullptr;
}

// A redirect is an answer too, and isn't followed (the server takes one
// connection only: a second request would wait out the time-out). A port
// nobody listens on, or a request without a session, is no answer.
TEST(CurlInternet, AnyHttpAnswerCountsWhateverItsStatus) {
  const struct {
    std::string reply;
    bool answered;
  } cases[] = {
      {"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", true},
      {"HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n", true},
      {"HTTP/1.1 302 Found\r\nLocation: /elsewhere\r\nContent-Length: 0\r\n\r\n", true},
      {"hello, not HTTP\n", false},
  };
  for (const auto& c : cases) {
    OneShotServer server(c.reply);
    EXPECT_EQ(Answered(server.port), c.answered) << c.reply;
    const std::string& head = server.Head();
    EXPECT_EQ(head.rfind("GET /connectiontest.html HTTP/1.1\r\n", 0), 0u) << head;
    for (const char* line :
         {"\r\nUser-Agent: Jeerbox\r\n", "\r\nCache-Control: no-cache\r\n", "\r\nPragma: no-cache\r\n"})
      EXPECT_NE(head.find(line), std::string::npos) << line << " in " << head;
  }
  int closed = 0;
  const int fd = BoundSocket(&closed);
  EXPECT_FALSE(Answered(closed));
  close(fd);
  CurlInternet net;  // and no session, no request
  EXPECT_EQ(net.InternetOpenUrlA(nullptr, "http://127.0.0.1/", nullptr, 0, 0, 0), nullptr);
  EXPECT_FALSE(net.InternetCloseHandle(nullptr));
}

}  // namespace
}  // namespace jeerbox::testing
