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

const char* const kMiscKeys[] = {"Misc-Jeerbox-WhoSays",   "Misc-Jeerbox-Person", "Misc-Jeerbox-HowBig",
                                 "Misc-Jeerbox-Adjective", "Misc-Jeerbox-Noun",   "Misc-Jeerbox-AndMore",
                                 "Misc-Jeerbox-Someone"};
const char* const kGeneralKeys[] = {"General-Character", "General-Insult", "General-Curse", "General-Exclaim",
                                    "General-AutoDealer"};

std::string Head(const std::string& key) { return "\r\n[" + SimpleCrypt(key) + "]\r\n"; }

// Every key of both families with the same lines.
void WriteBothFamilies(const fs::path& system, const std::vector<std::string>& lines) {
  std::string misc = ";crafted\r\n", general = ";crafted\r\n";
  for (const char* key : kMiscKeys) {
    misc += Head(key);
    for (const std::string& line : lines) misc += SimpleCrypt(line) + "\r\n";
  }
  for (const char* key : kGeneralKeys) general += Head(key) + SimpleCrypt(lines.front()) + "\r\n";
  Write(system / "Misc.001", misc);
  Write(system / "General.001", general);
}

}  // namespace

const char* const kCraftedShapes[7] = {"tokens", "slashes", "closes", "retries", "floods", "files", "mixed"};

size_t WriteCraftedLists(const std::string& root, const std::string& shape) {
  const fs::path system = fs::path(root) / "System";
  fs::create_directories(system);
  const std::string tokens = "<RandomChar><Insult><Curse><Exclaim><AutoDealer>";
  if (shape == "tokens") {
    std::string line = tokens;
    for (int i = 0; line.size() < 32000; ++i)
      line += " {a" + std::to_string(i) + "/b" + std::to_string(i) + "/}";
    WriteBothFamilies(system, {line, line + "!"});
  } else if (shape == "slashes") {
    std::string line = tokens + "{" + std::string(30000, '/') + "}";
    for (int i = 0; i < 300; ++i) line += "{a/b}";
    WriteBothFamilies(system, {line});
  } else if (shape == "closes") {
    std::string line = tokens + std::string(20000, '}');
    while (line.size() < 32700) line += "{a/b}";
    WriteBothFamilies(system, {line});
  } else if (shape == "retries") {
    std::string misc = ";crafted\r\n";
    for (const char* key : kMiscKeys)
      misc += Head(key) +
              (std::string(key) == "Misc-Jeerbox-Adjective"
                   ? SimpleCrypt(std::string(32000, 'a') + "b") + "\r\n" +
                         SimpleCrypt(std::string(16000, 'a') + "b")
                   : SimpleCrypt("plain")) +
              "\r\n";
    Write(system / "Misc.001", misc);
  } else if (shape == "floods") {
    const std::string anchor = SimpleCrypt("M");  // the first byte of every Misc key, stored
    std::string misc = ";" + std::string(900000, anchor[0]) + "\r\n";
    std::string comments;
    for (int i = 0; i < 5000; ++i) comments += ";\r\n";
    for (const char* key : kMiscKeys)
      misc += Head(key) + SimpleCrypt("x") + "\r\n" + comments + SimpleCrypt("y") + "\r\n";
    Write(system / "Misc.001", misc);
  } else if (shape == "files") {
    std::string line = tokens;
    for (int i = 0; line.size() < 400; ++i) line += " {a" + std::to_string(i) + "/b}";
    for (int n = 1; n <= 999; ++n) {
      Write(system / FamilyFileName("Misc", n), Head(kMiscKeys[n % 7]) + SimpleCrypt(line) + "\r\n");
      Write(system / FamilyFileName("General", n), Head(kGeneralKeys[n % 5]) + SimpleCrypt(line) + "\r\n");
    }
  }
  if (shape == "mixed") {
    std::string line = tokens;
    for (int i = 0; line.size() < 30000; ++i) line += " {a" + std::to_string(i) + "/b}";
    std::string misc = ";" + std::string(560000, SimpleCrypt("M")[0]) + "\r\n";
    std::string general = ";crafted\r\n";
    for (const char* key : kMiscKeys) misc += Head(key) + SimpleCrypt(line) + "\r\n";
    for (const char* key : kGeneralKeys) general += Head(key) + SimpleCrypt(line) + "\r\n";
    Write(system / "Misc.001", misc);
    Write(system / "General.001", general);
  }
  size_t bytes = 0;
  for (const auto& entry : fs::directory_iterator(system)) bytes += static_cast<size_t>(entry.file_size());
  return bytes;
}

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
