// The line list and the text store against plain readings of the same
// bytes: a CR LF split, and a whole-file search per key.
#include "text/LineList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "helpers/fake_file_system.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

// The plain reading: split at every CR LF, keep the pieces that hold more
// than blanks, aren't a lone CR and don't begin with ";".
std::vector<std::string> ReferenceLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  for (;;) {
    const size_t end = text.find("\r\n", start);
    const std::string piece = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    if (piece.find_first_not_of(' ') != std::string::npos && piece != "\r" && piece[0] != ';')
      lines.push_back(piece);
    if (end == std::string::npos) return lines;
    start = end + 2;
  }
}

std::vector<std::string> ListedLines(const LineList& list) {
  std::vector<std::string> lines;
  for (size_t i = 0; i < list.size(); ++i) lines.emplace_back(list[i]);
  return lines;
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

// The scrambler as the format defines it: byte i XOR key byte i mod 9.
std::string Scramble(const std::string& text) {
  std::string out = text;
  for (size_t i = 0; i < out.size(); ++i) out[i] = static_cast<char>(out[i] ^ "QUORVEMAL"[i % 9]);
  return out;
}

// Lines run to hundreds of bytes; the scrambler takes them a word at a time.
TEST(SimpleCrypt, ScramblesAsTheFormatSaysAtEveryLength) {
  std::string text;
  for (int size = 0; size < 200; ++size, text += static_cast<char>(size * 37))
    ASSERT_EQ(SimpleCrypt(text), Scramble(text)) << size << " bytes";
}

// The plain reading of a key: each file of the family up to the first one
// missing, unless marked text is barred and the file holds the marker; in
// it a whole-file search for the stored key, and the text from the second
// byte behind it up to the CR of the next CR LF "[".
std::vector<std::string> ReferenceKeyLines(testing::FakeFileSystem& fs, const std::string& key) {
  const std::string stored = Scramble(key);
  std::vector<std::string> lines;
  for (int n = 1; n <= kMaxFileNumber; ++n) {
    const std::string path = CTextGenerator::BuildTextFileName(key, n);
    if (!fs.FileExists(path)) break;
    const std::string bytes = fs.Contents(path);
    if (!gAllowMarkedText && bytes.find(Scramble("<XT>")) != std::string::npos) continue;
    const size_t match = bytes.find(stored);
    if (match == std::string::npos || match + stored.size() + 1 >= bytes.size()) continue;
    std::string section = bytes.substr(match + stored.size() + 1);
    const size_t end = section.find("\r\n[");
    if (end != std::string::npos) section.resize(end + 1);
    for (const std::string& line : ReferenceLines(section)) lines.push_back(line);
  }
  if (lines.empty()) lines.emplace_back();
  return lines;
}

// A file written to trip a reader: heads of the keys, of prefixes of them
// and twice over, keys and markers inside lines, lone CRs and LFs, blank
// and stray "[" lines, and floods of the stored family name of any length,
// overlapping where the name can overlap itself.
std::string HostileFile(std::mt19937& rng, const std::string& family, const std::vector<std::string>& keys) {
  auto pick = [&rng](size_t n) { return std::uniform_int_distribution<size_t>(0, n - 1)(rng); };
  std::string flood;
  while (flood.size() < 4200) flood += SimpleCrypt(family);
  std::string text;
  for (size_t i = pick(80); i > 0; --i) {
    const std::string& key = keys[pick(keys.size())];
    const std::string pieces[] = {SimpleCrypt("word " + std::to_string(i)),
                                  SimpleCrypt("word " + std::to_string(i)),
                                  "",
                                  "  ",
                                  ";" + SimpleCrypt(key),
                                  "\r",
                                  "\n",
                                  "[",
                                  SimpleCrypt("<XT>"),
                                  "[" + SimpleCrypt(key) + "]",
                                  "[" + SimpleCrypt(key) + "]",
                                  "[" + SimpleCrypt(key.substr(0, 1 + pick(key.size()))) + "]",
                                  SimpleCrypt(key),
                                  flood.substr(0, pick(flood.size()))};
    text += pieces[pick(std::size(pieces))];
    if (pick(4) != 0) text += "\r\n";
  }
  return text;
}

// The text store's lines for each key, asked in any order of one
// generator, are those of the plain reading.
TEST(TextStore, ReadsEveryKeyAsThePlainReaderDoes) {
  const std::vector<std::vector<std::string>> families = {
      {"Misc-Noun", "Misc-NounX", "Misc-Adj-Of-Every-Kind", "Misc"},
      {"AE-x", "AE-xy", "AE"}};  // "AE" is stored as one byte twice
  std::mt19937 rng(2024);
  gAppPath = "C:\\app";
  for (int seed = 0; seed < 400; ++seed) {
    std::vector<std::string> keys = families[seed % 2];
    const std::string family = KeyFamily(keys[0]);
    testing::FakeFileSystem fs;
    const int files = 1 + seed % 4;
    for (int n = 1; n <= files + 2; ++n)  // the last behind a gap, never read
      if (n != files + 1)
        fs.Write(CTextGenerator::BuildTextFileName(family, n), HostileFile(rng, family, keys));
    gAllowMarkedText = seed % 3 != 0;
    ScopedFileSystem scoped(&fs);
    std::shuffle(keys.begin(), keys.end(), rng);
    CTextGenerator generator;
    for (const std::string& key : keys)
      ASSERT_EQ(ListedLines(generator.GetCacheItem(key)), ReferenceKeyLines(fs, key))
          << "seed " << seed << ", key " << key;
  }
  gAllowMarkedText = true;
}

}  // namespace
}  // namespace jeerbox
