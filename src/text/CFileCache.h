// A small fixed-capacity cache, first in first out. The age of the entries
// lives in one "~"-delimited key list; a hit doesn't refresh an entry.
#pragma once

#include <string>
#include <unordered_map>

#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "text/IItemCacheProvider.h"

namespace jeerbox {

template <typename Value>
class CFileCache {
 public:
  // Capacity must be at least 1.
  void Setup(int maxCacheSize) {
    mItems.clear();
    mMaxCacheSize = maxCacheSize;
    mKeyList.clear();
    mDelimiter = "~";
  }

  // The value of the item, from the provider on a miss. The reference holds
  // until the next GetItem.
  const Value& GetItem(const std::string& itemId, IItemCacheProvider<Value>& provider) {
    const std::string& key = MakeKey(itemId);
    if (!IsCached(key)) AddToCache(key, provider.GetCacheItem(itemId));
    NoteKey(key);
    TrimCache();
    return FetchFromCache(key);
  }

  size_t Size() const { return mItems.size(); }
  const std::string& KeyList() const { return mKeyList; }

 private:
  bool IsCached(const std::string& key) const { return CollectionHasKey(mItems, key); }

  // Directory and extension take no part in the key. A text key has
  // neither and is its own key, which spares a copy on every pick; the
  // reference holds until the next call.
  const std::string& MakeKey(const std::string& itemId) {
    if (itemId.find('\\') == std::string::npos && itemId.find('.') == std::string::npos) return itemId;
    mMadeKey = BaseName(itemId);
    return mMadeKey;
  }

  void AddToCache(const std::string& key, Value value) {
    if (!IsCached(key)) mItems.emplace(key, std::move(value));
  }

  void NoteKey(const std::string& key) {
    if (IsKeyListed(key)) return;
    if (!mKeyList.empty()) mKeyList += mDelimiter;
    mKeyList += key;
  }

  void TrimCache() {
    if (static_cast<int>(mItems.size()) <= mMaxCacheSize) return;
    const size_t cut = mKeyList.find(mDelimiter);
    if (cut == std::string::npos) return;  // one key only: capacity 0 isn't supported
    const std::string oldest = mKeyList.substr(0, cut);
    mKeyList.erase(0, cut + mDelimiter.size());
    mItems.erase(oldest);
  }

  const Value& FetchFromCache(const std::string& key) const { return mItems.at(key); }

  // The delimiters take part, so a key that is only a part of a listed key
  // isn't taken for listed: the key must stand between two of them, or at
  // an end of the list. Searched in place, since every pick asks.
  bool IsKeyListed(const std::string& key) const {
    const size_t d = mDelimiter.size();
    for (size_t at = mKeyList.find(key); at != std::string::npos; at = mKeyList.find(key, at + 1)) {
      const size_t end = at + key.size();
      if ((at == 0 || (at >= d && mKeyList.compare(at - d, d, mDelimiter) == 0)) &&
          (end == mKeyList.size() || mKeyList.compare(end, d, mDelimiter) == 0))
        return true;
    }
    return false;
  }

  std::unordered_map<std::string, Value> mItems;
  int mMaxCacheSize = 0;
  std::string mKeyList;
  std::string mDelimiter = "~";
  std::string mMadeKey;  // the last key MakeKey had to make
};

}  // namespace jeerbox
