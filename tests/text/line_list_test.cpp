#include "text/LineList.h"
#include "text/wordlist_format.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/random.h"

namespace jeerbox {
namespace {

// The plain reading: split at every CR LF, keep the data pieces.
std::vector<std::string> ReferenceLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  for (;;) {
    const size_t end = text.find("\r\n", start);
    const std::string piece = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    if (IsDataPiece(piece)) lines.push_back(piece);
    if (end == std::string::npos) return lines;
    start = end + 2;
  }
}

std::vector<std::string> ListedLines(const LineList& list) {
  std::vector<std::string> lines;
  for (size_t i = 0; i < list.size(); ++i) lines.emplace_back(list[i]);
  return lines;
}

// Text made mostly of the bytes that matter to the split, in every order.
std::string RandomSection(std::mt19937& rng, size_t size) {
  static const char kBytes[] = {'\r', '\n', '\r', '\n', ';', ' ', ' ', 'a', 'b', '[', '\0'};
  std::uniform_int_distribution<size_t> pick(0, sizeof kBytes - 1);
  std::uniform_int_distribution<int> kind(0, 3);
  std::string text;
  while (text.size() < size) {
    if (kind(rng) == 0) {
      text += "\r\n";
    } else if (kind(rng) == 0) {
      text += "word line " + std::to_string(text.size());
    } else {
      text += kBytes[pick(rng)];
    }
  }
  return text;
}

TEST(LineList, AgreesWithThePlainSplitOnArbitraryText) {
  std::mt19937 rng(12345);
  for (int round = 0; round < 400; ++round) {
    const std::string text = RandomSection(rng, static_cast<size_t>(round) * 23 % 3000);
    LineList list;
    list.AppendSection(text);
    ASSERT_EQ(ListedLines(list), ReferenceLines(text)) << "round " << round;
  }
}

TEST(LineList, IndexesAcrossSectionsAndCheckpoints) {
  std::string first, second;
  for (int i = 0; i < 3000; ++i)
    first += "\r\nline " + std::to_string(i) + (i % 7 == 0 ? "\r\n;c\r\n  " : "") +
             (i % 400 == 3 ? "\r\n;" + std::string(5000, 'c') : "");  // lines far apart
  for (int i = 0; i < 50; ++i) second += "\r\nmore " + std::to_string(i);
  LineList list;
  list.AppendSection(first);
  list.AppendSection("");
  list.AppendSection(second);
  ASSERT_EQ(list.size(), 3050u);
  for (size_t i = 0; i < 3000; ++i) ASSERT_EQ(list[i], "line " + std::to_string(i));
  EXPECT_EQ(list[3000], "more 0");
  EXPECT_EQ(list[3049], "more 49");
}

TEST(LineList, NothingIsOneEmptyLine) {
  LineList list;
  list.AppendSection("\r\n;only a comment\r\n   \r\n");
  EXPECT_TRUE(list.empty());
  list.MarkNothingIfEmpty();
  ASSERT_EQ(list.size(), 1u);
  EXPECT_EQ(list[0], "");
}

}  // namespace
}  // namespace jeerbox
