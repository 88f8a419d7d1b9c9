#include "text/CFileCache.h"

#include <gtest/gtest.h>

#include <map>

namespace jeerbox {
namespace {

// Hands out "value of ID #n" and counts how often each ID was asked for.
class CountingProvider : public IItemCacheProvider<std::string> {
 public:
  std::string GetCacheItem(const std::string& requestedId) override {
    return requestedId + "#" + std::to_string(++calls[requestedId]);
  }
  std::map<std::string, int> calls;
};

class FileCacheTest : public ::testing::Test {
 protected:
  FileCacheTest() { cache.Setup(20); }
  std::string Get(const std::string& id) { return cache.GetItem(id, provider); }

  CFileCache<std::string> cache;
  CountingProvider provider;
};

TEST_F(FileCacheTest, ASecondGetIsAHit) {
  EXPECT_EQ(Get("General-Insult"), "General-Insult#1");
  EXPECT_EQ(Get("General-Insult"), "General-Insult#1");
  EXPECT_EQ(provider.calls["General-Insult"], 1);
}

TEST_F(FileCacheTest, DirectoryAndExtensionTakeNoPartInTheKey) {
  // The provider gets the identifier, not the key.
  EXPECT_EQ(Get("C:\\one\\laugh.mp3"), "C:\\one\\laugh.mp3#1");
  EXPECT_EQ(Get("D:\\two\\laugh.wav"), "C:\\one\\laugh.mp3#1");
  EXPECT_EQ(provider.calls.count("D:\\two\\laugh.wav"), 0u);
}

TEST_F(FileCacheTest, TheTwentyFirstKeyEvictsTheFirstEvenIfJustUsed) {
  for (int i = 1; i <= 20; ++i) Get("k" + std::to_string(i));
  Get("k1");  // a hit doesn't refresh the entry
  EXPECT_EQ(provider.calls["k1"], 1);
  Get("k21");
  EXPECT_EQ(cache.Size(), 20u);
  EXPECT_EQ(Get("k2"), "k2#1");  // still there
  EXPECT_EQ(Get("k1"), "k1#2");  // evicted, fetched anew, listed as newest
  EXPECT_EQ(cache.KeyList().substr(cache.KeyList().rfind('~') + 1), "k1");
  EXPECT_EQ(cache.KeyList().substr(0, 3), "k3~");  // and its return pushed out k2
}

TEST_F(FileCacheTest, APartOfAListedKeyIsNotListed) {
  Get("General-Insult");
  Get("Insult");
  EXPECT_EQ(provider.calls["Insult"], 1);
  EXPECT_EQ(cache.KeyList(), "General-Insult~Insult");
}

TEST(FileCacheCapacity, OneHoldsOnlyTheNewest) {
  CFileCache<std::string> cache;
  cache.Setup(1);
  CountingProvider provider;
  cache.GetItem("a", provider);
  EXPECT_EQ(cache.GetItem("b", provider), "b#1");
  EXPECT_EQ(cache.Size(), 1u);
  EXPECT_EQ(cache.GetItem("a", provider), "a#2");
}

}  // namespace
}  // namespace jeerbox
