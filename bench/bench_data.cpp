#include "bench_data.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "text/MSimpleCrypto.h"

namespace jeerbox::bench {
namespace {

namespace fs = std::filesystem;

const char* kSyllables[] = {"bor", "quim", "ble", "snor", "wid", "gle", "pud", "ding", "fla", "dunk",
                            "mer", "tosh", "ver", "bos",  "nit", "wit", "tur", "nip",  "gob", "lin"};

std::string Word(unsigned seed, int syllables) {
  std::string word;
  for (int i = 0; i < syllables; ++i) word += kSyllables[(seed >> (i * 4)) % 20];
  return word;
}

struct Section {
  std::string key;
  int lines;
  int words;
};

std::string Build(const std::vector<Section>& sections, unsigned salt) {
  std::string out = ";generated for benchmarks\r\n";
  for (const Section& s : sections) {
    out += "\r\n[" + SimpleCrypt(s.key) + "]\r\n";
    for (int i = 0; i < s.lines; ++i) {
      std::string line;
      for (int w = 0; w < s.words; ++w)
        line +=
            (w ? " " : "") +
            Word((static_cast<unsigned>(i) * 2654435761u) ^ salt ^ static_cast<unsigned>(w * 97), 2 + w % 2);
      if (i % 10 == 0) line += " {indeed/truly/verily}";
      out += SimpleCrypt(line) + "\r\n";
    }
  }
  return out;
}

// Every key a sentence fetches, `scale` times the lines of the first file.
std::vector<Section> SentenceSections(int scale) {
  return {{"Misc-Jeerbox-WhoSays", 60 * scale, 2}, {"Misc-Jeerbox-Person", 60 * scale, 2},
          {"Misc-Jeerbox-HowBig", 60 * scale, 2},  {"Misc-Jeerbox-Adjective", 300 * scale, 1},
          {"Misc-Jeerbox-Noun", 300 * scale, 1},   {"Misc-Jeerbox-AndMore", 60 * scale, 3},
          {"Misc-Jeerbox-Someone", 60 * scale, 2}};
}

void Write(const fs::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
  if (!out) {
    std::fprintf(stderr, "bench: can't write %s\n", path.c_str());
    std::exit(1);
  }
}

}  // namespace

std::string FamilyFileName(const char* prefix, int number) {
  char name[32];
  std::snprintf(name, sizeof name, "%s.%03d", prefix, number);
  return name;
}

std::string MakeTempDir() {
  std::string pattern = (fs::temp_directory_path() / "jeerbox-bench-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) std::abort();
  return pattern;
}

void WriteBenchData(const std::string& root) {
  const fs::path system = fs::path(root) / "System";
  fs::create_directories(system);
  Write(system / "Misc.001", Build(SentenceSections(1), 1));
  Write(system / "Misc.002", Build({{"Misc-Jeerbox-Adjective", 400, 1},
                                    {"Misc-Jeerbox-Noun", 400, 1},
                                    {"Misc-Jeerbox-Someone", 100, 2}},
                                   2));
  Write(system / "General.001", Build({{"General-Insult", 60, 3}, {"General-Curse", 60, 2}}, 3));
}

void WriteScaledFamily(const std::string& root, int files, size_t fileBytes) {
  const fs::path system = fs::path(root) / "System";
  fs::create_directories(system);
  const size_t unit = Build(SentenceSections(1), 0).size();
  const int scale = std::max(1, static_cast<int>(fileBytes / unit));
  for (int n = 1; n <= files; ++n) {
    // A key no sentence asks for fills each file up to the same size, cut
    // at a line end: the sentence keys keep all their lines.
    std::string bytes = Build(SentenceSections(scale), static_cast<unsigned>(n));
    if (bytes.size() < fileBytes) {
      const int filler = static_cast<int>((fileBytes - bytes.size()) / 8) + 2;
      bytes += Build({{"Misc-Bench-Filler", filler, 1}}, static_cast<unsigned>(n)).substr(27);
      const size_t cut = bytes.rfind("\r\n", fileBytes - 2);
      if (cut != std::string::npos) bytes.resize(cut + 2);
    }
    Write(system / FamilyFileName("Misc", n), bytes);
  }
}

BenchData::BenchData(const std::string& givenRoot) : mRoot(givenRoot) {
  if (mRoot.empty()) {
    mRoot = MakeTempDir();
    mOwned = true;
    WriteBenchData(mRoot);
  }
  std::error_code error;
  for (int n = 1; n <= 999; ++n) {
    const auto size = fs::file_size(fs::path(mRoot) / "System" / FamilyFileName("Misc", n), error);
    if (error) break;
    mFamilyBytes += static_cast<size_t>(size);
    mFamilyFiles = n;
  }
  if (mFamilyFiles == 0) {
    std::fprintf(stderr, "bench: no System/Misc.001 under %s\n", mRoot.c_str());
    std::exit(1);
  }
}

BenchData::~BenchData() {
  if (!mOwned) return;
  std::error_code ignored;
  fs::remove_all(mRoot, ignored);
}

}  // namespace jeerbox::bench
