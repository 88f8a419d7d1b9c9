// The support helpers: paths and blanks, the Windows-1252 codec, and the
// random source behind every pick.
#include <gtest/gtest.h>

#include <set>

#include "helpers/scripted_random.h"
#include "support/MSimpleIO.h"
#include "support/random.h"
#include "support/windows_1252.h"

namespace jeerbox {
namespace {

TEST(PathHelpers, TakePathsApartAtTheLastSeparatorAndDot) {
  const struct {
    const char* call;
    std::string got;
    const char* want;
  } rows[] = {
      {"StripPath media", StripPath("C:\\app\\Media\\laugh.mp3"), "laugh.mp3"},
      {"StripPath plain", StripPath("name"), "name"},
      {"StripPath dir\\", StripPath("dir\\"), ""},
      {"StripExtension media", StripExtension("C:\\app\\Media\\laugh.mp3"), "C:\\app\\Media\\laugh"},
      {"StripExtension a.b.c", StripExtension("a.b.c"), "a.b"},
      {"StripExtension dotted dir", StripExtension("C:\\my.dir\\name"), "C:\\my.dir\\name"},
      {"BaseName", BaseName("C:\\my.dir\\a.b.c"), "a.b"},
      {"BaseName key", BaseName("General-Insult"), "General-Insult"},
      {"ChangeExtension", ChangeExtension("x\\laugh1.wav", "mp3"), "x\\laugh1.mp3"},
      {"ChangeExtension dot", ChangeExtension("x\\laugh1", ".mp3"), "x\\laugh1.mp3"},
      {"ChangeExtension empty", ChangeExtension("laugh.wav", ""), "laugh"},
      {"ChangeExtension lone dot", ChangeExtension("laugh.wav", "."), "laugh"},
      {"Trim", Trim("  a b  "), "a b"},
      {"Trim blanks", Trim("   "), ""},
      {"Trim only blanks", Trim("\ta\r"), "\ta\r"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.got, row.want) << row.call;
}

TEST(Windows1252, EveryByteIsOneCharacterBothWays) {
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  const std::u16string text = DecodeWindows1252(all);
  ASSERT_EQ(text.size(), 256u);
  EXPECT_EQ(EncodeWindows1252(text), all);
  const std::pair<unsigned char, char16_t> rows[] = {{0x80, 0x20AC}, {0x85, 0x2026}, {0x92, 0x2019},
                                                     {0x9F, 0x0178}, {0x81, 0x0081}, {0xE9, 0x00E9}};
  for (const auto& [byte, shown] : rows) EXPECT_EQ(text[byte], shown) << std::hex << int{byte};
  EXPECT_EQ(EncodeWindows1252(u"\u4E00"), "?");
}

// Picks reseed often within one clock tick (frozen when seeded): a reseed
// must never put the sequence back where it was, or an adjective retry
// would repeat forever.
TEST(Pcg32Random, ASeedGivesItsOwnSequenceThatReseedsNeverRestart) {
  const auto draws = [](Pcg32Random source) {
    std::vector<float> out;
    for (int i = 0; i < 100; ++i) {
      source.Reseed();
      source.Reseed();
      out.push_back(source.Next());
    }
    return out;
  };
  const std::vector<float> first = draws(Pcg32Random(42));
  EXPECT_EQ(first, draws(Pcg32Random(42)));
  EXPECT_NE(first, draws(Pcg32Random(43)));
  EXPECT_GT(std::set<float>(first.begin(), first.end()).size(), 95u);
  SeedRandom(42);  // the process-wide source
  EXPECT_EQ(NextRandom(), Pcg32Random(42).Next());
}

TEST(Pcg32Random, ValuesSpanTheHalfOpenUnitInterval) {
  Pcg32Random random(1);
  float low = 1, high = 0;
  for (int i = 0; i < 20000; ++i) {
    const float v = random.Next();
    ASSERT_TRUE(v >= 0.0f && v < 1.0f) << v;
    low = std::min(low, v);
    high = std::max(high, v);
  }
  EXPECT_TRUE(low < 0.001f && high > 0.999f) << low << " " << high;
}

// Near 1 the product can round up to n itself; every call draws once.
TEST(RandomIndexAndNumber, MapTheDrawOntoTheirRange) {
  const float nearOne = 0.99999994f;
  // Rows: RandomIndex?, n, draw, result.
  const std::tuple<bool, int, float, int> rows[] = {
      {true, 32767, nearOne, 32766}, {true, 1, 0.5f, 0},    {false, 10, nearOne, 10},
      {false, 20, nearOne, 20},      {false, 10, 0, 1},     {false, 10, 0.29999f, 3},
      {false, 10, 0.3f, 4},          {false, 20, 0.95f, 20}};
  for (const auto& [index, n, draw, expected] : rows) {
    testing::ScriptedRandom script({draw});
    EXPECT_EQ(index ? RandomIndex(n) : RandomNumber(n), expected) << n << " " << draw;
    EXPECT_EQ(script.Draws(), 1);
  }
}

}  // namespace
}  // namespace jeerbox
