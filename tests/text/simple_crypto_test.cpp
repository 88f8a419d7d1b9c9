#include "text/MSimpleCrypto.h"

#include <gtest/gtest.h>

namespace jeerbox {
namespace {

TEST(SimpleCrypt, IsItsOwnInverse) {
  const std::string text("Misc-Jeerbox-Noun \x92 pudding\0!", 29);
  EXPECT_EQ(SimpleCrypt(SimpleCrypt(text)), text);
  EXPECT_NE(SimpleCrypt(text), text);
  EXPECT_EQ(SimpleCrypt(""), "");
}

TEST(SimpleCrypt, RepeatsTheKeyFromItsFirstCharacter) {
  // The key xor itself is all zeros; one character past the key starts over.
  EXPECT_EQ(SimpleCrypt("QUORVEMALQU"), std::string(11, '\0'));
  EXPECT_EQ(SimpleCrypt("a"), std::string(1, static_cast<char>('a' ^ 'Q')));
  const std::string expected = {static_cast<char>('a' ^ 'Z'), static_cast<char>('b' ^ 'Z')};
  EXPECT_EQ(SimpleCrypt("ab", "Z"), expected);
}

}  // namespace
}  // namespace jeerbox
