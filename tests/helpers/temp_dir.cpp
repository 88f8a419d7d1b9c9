#include "helpers/temp_dir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace jeerbox::testing {

TempDir::TempDir() {
  std::string pattern = (std::filesystem::temp_directory_path() / "jeerbox-test-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  mPath = pattern;
}

TempDir::~TempDir() {
  std::error_code ignored;
  std::filesystem::remove_all(mPath, ignored);
}

void TempDir::Write(const std::string& relative, const std::string& contents) const {
  const std::filesystem::path path = std::filesystem::path(mPath) / relative;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << contents;
}

}  // namespace jeerbox::testing
