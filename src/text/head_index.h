// Where the keys of one family can start in one of its files, found in a
// single sweep however many keys a generator asks for.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace jeerbox {

// Every stored key of a family begins with the stored family name, so its
// first occurrence is the first place, among those where the name occurs,
// at which the whole key follows. The places are found as far as the keys
// asked for so far needed, and each byte of the file is swept once.
class HeadIndex {
 public:
  HeadIndex() = default;
  // `bytes` must outlive the index; `storedPrefix` begins every stored key
  // that will be looked up.
  HeadIndex(std::string_view bytes, std::string storedPrefix);

  // The first occurrence of `storedKey` anywhere in the file, or npos: the
  // same as a plain search of the whole file.
  size_t Find(std::string_view storedKey);

 private:
  bool KeyAt(size_t place, std::string_view storedKey) const;

  // Places kept at most; a file made of the family name repeated would
  // otherwise hold one for every few bytes. Past it keys are searched for
  // behind the last place kept.
  static constexpr size_t kMaxPlaces = 1024;

  std::string_view mBytes;
  std::string mPrefix;
  std::vector<size_t> mPlaces;
  size_t mSwept = 0;  // every place in front of this is in mPlaces
};

}  // namespace jeerbox
