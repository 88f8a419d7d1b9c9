#include "support/windows_1252.h"

#include <gtest/gtest.h>

namespace jeerbox {
namespace {

TEST(Windows1252, EveryByteIsOneCharacterBothWays) {
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  const std::u16string text = DecodeWindows1252(all);
  ASSERT_EQ(text.size(), 256u);
  EXPECT_EQ(EncodeWindows1252(text), all);
  struct Row {
    unsigned char byte;
    char16_t shown;
  };
  for (const Row& row : {Row{0x80, 0x20AC}, Row{0x85, 0x2026}, Row{0x92, 0x2019}, Row{0x9F, 0x0178},
                         Row{0x81, 0x0081}, Row{0xE9, 0x00E9}, Row{0x0D, 0x000D}})
    EXPECT_EQ(text[row.byte], row.shown) << std::hex << int{row.byte};
  EXPECT_EQ(EncodeWindows1252(u"\u4E00"), "?");
}

}  // namespace
}  // namespace jeerbox
