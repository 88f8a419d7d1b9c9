// POSIX sockets and poll(); one connection at a time is all the test needs.
#include "http_test_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>

namespace jeerbox::testing {
namespace {

int ListenOnLoopback(int* port) {
  const int fd = socket(AF_INET, SOCK_STREAM, 0);
  if (fd < 0) throw std::runtime_error("socket");
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof address;
  if (bind(fd, reinterpret_cast<sockaddr*>(&address), length) != 0 || listen(fd, 8) != 0 ||
      getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
    close(fd);
    throw std::runtime_error("bind/listen");
  }
  *port = ntohs(address.sin_port);
  return fd;
}

bool Readable(int fd, int timeoutMs) {
  pollfd p{fd, POLLIN, 0};
  return poll(&p, 1, timeoutMs) > 0;
}

}  // namespace

std::string HttpReply(int status, const std::string& reason, const std::string& body) {
  return "HTTP/1.1 " + std::to_string(status) + " " + reason +
         "\r\nContent-Length: " + std::to_string(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

HttpTestServer::HttpTestServer(Mode mode, std::string reply) : mMode(mode), mReply(std::move(reply)) {
  mListener = ListenOnLoopback(&mPort);
  mThread = std::thread([this] { Serve(); });
}

HttpTestServer::~HttpTestServer() {
  mStopping = true;
  mThread.join();
  close(mListener);
}

std::vector<std::string> HttpTestServer::Requests() {
  std::lock_guard<std::mutex> lock(mMutex);
  return mRequests;
}

int HttpTestServer::ClosedPort() {
  int port = 0;
  close(ListenOnLoopback(&port));
  return port;
}

void HttpTestServer::Serve() {
  while (!mStopping) {
    if (!Readable(mListener, 50)) continue;
    const int client = accept(mListener, nullptr, nullptr);
    if (client < 0) continue;
    std::string head;
    char buffer[1024];
    while (head.find("\r\n\r\n") == std::string::npos && !mStopping) {
      if (!Readable(client, 50)) continue;
      const ssize_t n = read(client, buffer, sizeof buffer);
      if (n <= 0) break;
      head.append(buffer, static_cast<size_t>(n));
    }
    {
      std::lock_guard<std::mutex> lock(mMutex);
      mRequests.push_back(head);
    }
    if (mMode == Mode::kAnswer) {
      if (write(client, mReply.data(), mReply.size()) < 0) {
        // The client went away; nothing to do.
      }
    } else {
      while (!mStopping && !(Readable(client, 50) && read(client, buffer, sizeof buffer) <= 0)) {
      }
    }
    close(client);
  }
}

}  // namespace jeerbox::testing
