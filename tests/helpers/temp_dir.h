// A directory under the system's temporary directory, removed with its
// contents when the object goes.
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

namespace jeerbox::testing {

class TempDir {
 public:
  // A fresh name: create_directory refuses one that exists, so two tests
  // never share. The clock goes in too, for a random_device that repeats.
  TempDir() {
    std::random_device device;
    std::mt19937_64 random(
        device() ^ static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
    for (int attempt = 0; attempt < 100 && mPath.empty(); ++attempt) {
      const auto path =
          std::filesystem::temp_directory_path() / ("jeerbox-test-" + std::to_string(random() % 1000000000));
      if (std::filesystem::create_directory(path)) mPath = path.string();
    }
    if (mPath.empty()) throw std::runtime_error("no temporary directory");
  }
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::string& Path() const { return mPath; }
  // Writes `contents` to Path()/relative, creating directories on the way.
  void Write(const std::string& relative, const std::string& contents) const {
    const std::filesystem::path path = std::filesystem::path(mPath) / relative;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary | std::ios::trunc) << contents;
  }
  // The bytes of the file Path()/relative, "" when there is none.
  std::string Read(const std::string& relative) const {
    const std::filesystem::path path = std::filesystem::path(mPath) / relative;
    if (!std::filesystem::is_regular_file(path)) return "";
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }

 private:
  std::string mPath;
};

}  // namespace jeerbox::testing
