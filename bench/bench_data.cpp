#include "bench_data.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "text/MSimpleCrypto.h"

namespace jeerbox::bench {
namespace {

const char* kSyllables[] = {"bor", "quim", "ble", "snor", "wid", "gle", "pud", "ding", "fla", "dunk",
                            "mer", "tosh", "ver", "bos", "nit", "wit", "tur", "nip", "gob", "lin"};

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
        line += (w ? " " : "") + Word((static_cast<unsigned>(i) * 2654435761u) ^ salt ^ static_cast<unsigned>(w * 97), 2 + w % 2);
      if (i % 10 == 0) line += " {indeed/truly/verily}";
      out += SimpleCrypt(line) + "\r\n";
    }
  }
  return out;
}

void Write(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

BenchData::BenchData() {
  std::string pattern = (std::filesystem::temp_directory_path() / "jeerbox-bench-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) std::abort();
  mRoot = pattern;
  const std::filesystem::path system = std::filesystem::path(mRoot) / "System";
  std::filesystem::create_directories(system);
  const std::string misc1 = Build({{"Misc-Jeerbox-WhoSays", 60, 2}, {"Misc-Jeerbox-Person", 60, 2},
                                   {"Misc-Jeerbox-HowBig", 60, 2}, {"Misc-Jeerbox-Adjective", 300, 1},
                                   {"Misc-Jeerbox-Noun", 300, 1}, {"Misc-Jeerbox-AndMore", 60, 3},
                                   {"Misc-Jeerbox-Someone", 60, 2}}, 1);
  const std::string misc2 = Build({{"Misc-Jeerbox-Adjective", 400, 1}, {"Misc-Jeerbox-Noun", 400, 1},
                                   {"Misc-Jeerbox-Someone", 100, 2}}, 2);
  Write(system / "Misc.001", misc1);
  Write(system / "Misc.002", misc2);
  Write(system / "General.001", Build({{"General-Insult", 60, 3}, {"General-Curse", 60, 2}}, 3));
  mFamilyBytes = misc1.size() + misc2.size();
}

BenchData::~BenchData() {
  std::error_code ignored;
  std::filesystem::remove_all(mRoot, ignored);
}

}  // namespace jeerbox::bench
