// Start-up time of a window program: from just before exec to the X
// server's MapNotify of a top-level window with the given title. Waiting on
// the event costs no CPU, where polling for the window would take one of
// the cores the program starts on.
//   window_startup TITLE RUNS PROGRAM [ARGS...]
// Launches PROGRAM RUNS times (plus one to warm the caches), ends each
// launch once its window is mapped, and prints the median in ms.
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

xcb_atom_t Atom(xcb_connection_t* x, const char* name) {
  std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
      xcb_intern_atom_reply(x, xcb_intern_atom(x, 0, static_cast<uint16_t>(std::strlen(name)), name),
                            nullptr),
      &std::free);
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::string Title(xcb_connection_t* x, xcb_window_t window, xcb_atom_t property) {
  std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
      xcb_get_property_reply(x, xcb_get_property(x, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 256),
                             nullptr),
      &std::free);
  if (!reply) return {};
  return std::string(static_cast<const char*>(xcb_get_property_value(reply.get())),
                     static_cast<size_t>(xcb_get_property_value_length(reply.get())));
}

// Milliseconds from exec to the window's map, or a negative number when the
// program ended or the server went away first.
double LaunchOnce(xcb_connection_t* x, xcb_atom_t netName, const std::string& title, char** argv) {
  const Clock::time_point start = Clock::now();
  const pid_t child = fork();
  if (child < 0) return -1;
  if (child == 0) {
    dup2(STDERR_FILENO, STDOUT_FILENO);  // our output is the median alone
    execvp(argv[0], argv);
    _exit(127);
  }
  double ms = -1;
  const Clock::time_point deadline = start + std::chrono::seconds(20);
  while (ms < 0 && Clock::now() < deadline && !xcb_connection_has_error(x)) {
    std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event(xcb_poll_for_event(x), &std::free);
    if (!event) {
      if (waitpid(child, nullptr, WNOHANG) == child) return -1;  // ended without a window
      pollfd ready{xcb_get_file_descriptor(x), POLLIN, 0};
      poll(&ready, 1, 50);
      continue;
    }
    if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY) continue;
    const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window;
    if (Title(x, window, netName) == title || Title(x, window, XCB_ATOM_WM_NAME) == title)
      ms = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  }
  kill(child, SIGTERM);
  waitpid(child, nullptr, 0);
  return ms;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "usage: window_startup TITLE RUNS PROGRAM [ARGS...]\n");
    return 2;
  }
  const std::string title = argv[1];
  const int runs = std::atoi(argv[2]);
  xcb_connection_t* x = xcb_connect(nullptr, nullptr);
  if (xcb_connection_has_error(x)) {
    std::fprintf(stderr, "window_startup: no X display\n");
    return 1;
  }
  xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x)).data;
  const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(x, screen->root, XCB_CW_EVENT_MASK, &mask);
  const xcb_atom_t netName = Atom(x, "_NET_WM_NAME");

  std::vector<double> times;
  for (int i = 0; i <= runs; ++i) {
    const double ms = LaunchOnce(x, netName, title, argv + 3);
    if (ms < 0) {
      std::fprintf(stderr, "window_startup: no window named '%s' came up\n", title.c_str());
      return 1;
    }
    if (i > 0) times.push_back(ms);  // the first only warms the caches
  }
  std::sort(times.begin(), times.end());
  std::printf("%.1f\n", times[(times.size() - 1) / 2]);
  xcb_disconnect(x);
  return 0;
}
