// A directory under the system's temporary directory, removed with its
// contents when the object goes.
#pragma once

#include <string>

namespace jeerbox::testing {

class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::string& Path() const { return mPath; }
  // Writes `contents` to Path()/relative, creating directories on the way.
  void Write(const std::string& relative, const std::string& contents) const;

 private:
  std::string mPath;
};

}  // namespace jeerbox::testing
