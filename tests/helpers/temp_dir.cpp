#include "helpers/temp_dir.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

namespace jeerbox::testing {

// A fresh name: create_directory refuses one that exists, so two tests never
// share. The clock goes in too, for a random_device that repeats itself.
TempDir::TempDir() {
  std::random_device device;
  std::mt19937_64 random(device() ^
                         static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
  for (int attempt = 0; attempt < 100 && mPath.empty(); ++attempt) {
    const auto path =
        std::filesystem::temp_directory_path() / ("jeerbox-test-" + std::to_string(random() % 1000000000));
    if (std::filesystem::create_directory(path)) mPath = path.string();
  }
  if (mPath.empty()) throw std::runtime_error("no temporary directory");
}

TempDir::~TempDir() {
  std::error_code ignored;
  std::filesystem::remove_all(mPath, ignored);
}

void TempDir::Write(const std::string& relative, const std::string& contents) const {
  const std::filesystem::path path = std::filesystem::path(mPath) / relative;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary | std::ios::trunc) << contents;
}

}  // namespace jeerbox::testing
