// What a CFileCache asks for a value it doesn't hold yet.
#pragma once

#include <string>

namespace jeerbox {

template <typename Value>
class IItemCacheProvider {
 public:
  virtual ~IItemCacheProvider() = default;
  virtual Value GetCacheItem(const std::string& requestedId) = 0;
};

}  // namespace jeerbox
