// The places a family's stored keys can start in a file.
#include "text/head_index.h"

#include <utility>

#include "text/find_bytes.h"

namespace jeerbox {

HeadIndex::HeadIndex(std::string_view bytes, std::string storedPrefix)
    : mBytes(bytes), mPrefix(std::move(storedPrefix)) {
  mPlaces.reserve(16);  // a head for each key, and a few look-alikes
}

bool HeadIndex::KeyAt(size_t place, std::string_view storedKey) const {
  return mBytes.compare(place, storedKey.size(), storedKey) == 0;
}

size_t HeadIndex::Find(std::string_view storedKey) {
  if (mPrefix.empty() || storedKey.substr(0, mPrefix.size()) != mPrefix) return FindBytes(mBytes, storedKey);
  for (const size_t place : mPlaces)
    if (KeyAt(place, storedKey)) return place;
  while (mSwept < mBytes.size()) {
    if (mPlaces.size() == kMaxPlaces) {
      const size_t found = FindBytes(mBytes.substr(mSwept), storedKey);
      return found == std::string_view::npos ? found : mSwept + found;
    }
    const size_t found = FindBytes(mBytes.substr(mSwept), mPrefix);
    if (found == std::string_view::npos) break;
    const size_t place = mSwept + found;
    mPlaces.push_back(place);
    mSwept = place + 1;
    if (KeyAt(place, storedKey)) return place;
  }
  mSwept = mBytes.size();
  return std::string_view::npos;
}

}  // namespace jeerbox
