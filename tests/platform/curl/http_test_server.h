// A tiny HTTP server on 127.0.0.1 for the connection test: it answers every
// request with one fixed reply, or holds the connection and never answers,
// and records the requests it got.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace jeerbox::testing {

class HttpTestServer {
 public:
  enum class Mode { kAnswer, kNeverAnswer };

  // `reply` is sent as it stands (status line, headers, body).
  explicit HttpTestServer(Mode mode, std::string reply = std::string());
  ~HttpTestServer();
  HttpTestServer(const HttpTestServer&) = delete;
  HttpTestServer& operator=(const HttpTestServer&) = delete;

  int Port() const { return mPort; }
  std::string HostAndPort() const { return "127.0.0.1:" + std::to_string(mPort); }
  // The request heads received so far.
  std::vector<std::string> Requests();

  // A port on 127.0.0.1 that nothing listens on.
  static int ClosedPort();

 private:
  void Serve();

  Mode mMode;
  std::string mReply;
  int mListener = -1;
  int mPort = 0;
  std::atomic<bool> mStopping{false};
  std::mutex mMutex;
  std::vector<std::string> mRequests;
  std::thread mThread;
};

std::string HttpReply(int status, const std::string& reason, const std::string& body = "");

}  // namespace jeerbox::testing
