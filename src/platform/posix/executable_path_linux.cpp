// Linux: /proc/self/exe is the executable with every link resolved.
#include <unistd.h>

#include <climits>

#include "platform/process.h"

namespace jeerbox {

std::string ExecutableDirectory() {
  char buffer[PATH_MAX];
  const ssize_t n = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
  if (n <= 0) return std::string();
  std::string path(buffer, static_cast<size_t>(n));
  const size_t slash = path.rfind('/');
  if (slash == std::string::npos) return std::string();
  return slash == 0 ? std::string("/") : path.substr(0, slash);
}

// POSIX streams never translate.
void UseBinaryStandardOutput() {}

}  // namespace jeerbox
