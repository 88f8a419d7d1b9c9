// A program directory of generated word lists, sized like real content:
// two Misc files of about a thousand lines each and one General file.
#pragma once

#include <string>

namespace jeerbox::bench {

class BenchData {
 public:
  BenchData();  // writes the files under a fresh temporary directory
  ~BenchData();
  const std::string& Root() const { return mRoot; }
  size_t FamilyBytes() const { return mFamilyBytes; }

 private:
  std::string mRoot;
  size_t mFamilyBytes = 0;
};

}  // namespace jeerbox::bench
