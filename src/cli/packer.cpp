#include "cli/packer.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "cli/tool_output.h"
#include "text/MSimpleCrypto.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

// Where each written line came from, to name the source line of a byte.
struct WrittenLine {
  size_t offset;
  int sourceLine;
  std::string what;
};

std::string WhatStandsThere(const std::vector<WrittenLine>& written, size_t offset, int* line) {
  auto it = std::upper_bound(written.begin(), written.end(), offset,
                             [](size_t value, const WrittenLine& w) { return value < w.offset; });
  if (it == written.begin()) return "the file";
  --it;
  *line = it->sourceLine;
  return it->what;
}

struct Head {
  std::string key;
  std::string stored;
  size_t offset;  // of the stored key, behind the "["
  int line;
  bool duplicate;
};

class SourcePacker {
 public:
  SourcePacker(const std::string& fileName, const std::string& family, std::vector<Diagnostic>* diagnostics)
      : mFile(fileName), mFamily(family), mDiagnostics(diagnostics) {}

  std::string Pack(const std::vector<SourceLine>& lines, std::map<std::string, KeyTally>* keyLines,
                   PackStats* stats) {
    for (const SourceLine& line : lines) Add(line, keyLines, stats);
    CloseSection();
    CheckEarlierOccurrences();
    stats->keys = static_cast<int>(mHeads.size());
    return mOut;
  }

 private:
  void Report(int line, const std::string& reason) { mDiagnostics->push_back({mFile, line, reason}); }

  void Write(const std::string& bytes, int sourceLine, std::string what) {
    mWritten.push_back({mOut.size(), sourceLine, std::move(what)});
    mOut += bytes;
    mOut += kLineEnd;
    ++mSectionPieces;
  }

  void Add(const SourceLine& line, std::map<std::string, KeyTally>* keyLines, PackStats* stats) {
    using Kind = SourceLine::Kind;
    switch (line.kind) {
      case Kind::kBlank:
        Write("", line.number, "an empty line");
        mNeedsSeparator = false;
        break;
      case Kind::kComment:
        Write(line.text, line.number, "a comment");
        mNeedsSeparator = false;
        break;
      case Kind::kMarker:
        Write(MarkerCommentLine(), line.number, "the marker");
        stats->marked = true;
        mNeedsSeparator = false;
        break;
      case Kind::kHead:
        AddHead(line, keyLines);
        break;
      case Kind::kData:
        AddData(line, keyLines, stats);
        break;
    }
  }

  void AddHead(const SourceLine& line, std::map<std::string, KeyTally>* keyLines) {
    CloseSection();
    const std::string problem = KeyProblem(line.text, mFamily);
    if (!problem.empty()) Report(line.number, problem);
    bool duplicate = false;
    for (const Head& head : mHeads) {
      if (head.key != line.text) continue;
      Report(line.number, "key \"" + line.text + "\" already has a section at line " +
                              std::to_string(head.line) + "; the reader only reads the first");
      duplicate = true;
      break;
    }
    // An empty line keeps a data line in front of the head from ending in
    // the CR of the line end when read.
    if (mNeedsSeparator) Write("", line.number, "an empty line");
    const std::string head = HeadLine(line.text);
    mHeads.push_back({line.text, std::string(HeadKey(head)), mOut.size() + 1, line.number, duplicate});
    Write(head, line.number, "the head of key \"" + line.text + "\"");
    mSectionPieces = 0;
    mSectionLine = line.number;
    mNeedsSeparator = true;
    KeyTally& tally = (*keyLines)[line.text];
    if (tally.file.empty()) tally = {tally.lines, mFile, line.number};
  }

  void AddData(const SourceLine& line, std::map<std::string, KeyTally>* keyLines, PackStats* stats) {
    if (mHeads.empty()) {
      Report(line.number, "a data line in front of the first head: the program never reads it");
      return;
    }
    const std::string problem = DataLineProblem(line.text);
    if (!problem.empty()) Report(line.number, problem);
    Write(SimpleCrypt(line.text), line.number, "a data line");
    mNeedsSeparator = true;
    ++(*keyLines)[mHeads.back().key].lines;
    ++stats->lines;
  }

  void CloseSection() {
    if (mSectionLine > 0 && mSectionPieces + 1 > kMaxLinesPerKey)
      Report(mSectionLine, "the section runs to " + std::to_string(mSectionPieces + 1) +
                               " lines; the reader takes at most " + std::to_string(kMaxLinesPerKey));
    mSectionLine = 0;
  }

  // The reader finds a section by the first occurrence of the stored key
  // anywhere in the file, so nothing in front of a head may contain it.
  void CheckEarlierOccurrences() {
    for (const Head& head : mHeads) {
      if (head.duplicate) continue;
      const size_t first = mOut.find(head.stored);
      if (first >= head.offset) continue;
      int line = 0;
      const std::string what = WhatStandsThere(mWritten, first, &line);
      Report(head.line, "the stored form of key \"" + head.key + "\" already occurs in " + what +
                            (line > 0 ? " at line " + std::to_string(line) : std::string()) +
                            ", where the reader would take the section to begin");
    }
  }

  std::string mFile;
  std::string mFamily;
  std::vector<Diagnostic>* mDiagnostics;
  std::string mOut;
  std::vector<WrittenLine> mWritten;
  std::vector<Head> mHeads;
  bool mNeedsSeparator = false;
  int mSectionPieces = 0;
  int mSectionLine = 0;
};

// The numbers of each family must run 1, 2, 3... without a gap.
void CheckNumbering(const std::map<std::string, std::map<int, std::string>>& families,
                    std::vector<Diagnostic>* diagnostics) {
  for (const auto& [family, files] : families) {
    int expected = 1;
    for (const auto& [number, name] : files) {
      if (number != expected) {
        diagnostics->push_back({name, 0,
                                "family " + family + " has no file " + NumberedFileName(family, expected) +
                                    ".txt in front of this one; the program stops reading at the gap"});
        break;
      }
      ++expected;
    }
  }
}

}  // namespace

std::string PackSource(const std::string& fileName, const std::string& family, std::string_view bytes,
                       std::vector<Diagnostic>* diagnostics, std::map<std::string, KeyTally>* keyLines,
                       PackStats* stats) {
  const std::vector<SourceLine> lines = ParseSource(fileName, bytes, diagnostics);
  return SourcePacker(fileName, family, diagnostics).Pack(lines, keyLines, stats);
}

PackResult PackSources(const std::vector<NamedFile>& sources) {
  PackResult result;
  std::map<std::string, std::map<int, std::string>> families;
  std::vector<std::pair<std::string, int>> names;
  for (const NamedFile& source : sources) {
    std::string family;
    int number = 0;
    if (!ParseSourceName(source.name, &family, &number)) {
      result.diagnostics.push_back({source.name, 0, "not named FAMILY.NNN.txt"});
      names.emplace_back();
      continue;
    }
    families[family][number] = source.name;
    names.emplace_back(family, number);
  }
  CheckNumbering(families, &result.diagnostics);

  std::map<std::string, std::map<std::string, KeyTally>> keyLines;
  for (size_t i = 0; i < sources.size(); ++i) {
    if (names[i].first.empty()) continue;
    PackStats stats;
    std::string bytes = PackSource(sources[i].name, names[i].first, sources[i].bytes, &result.diagnostics,
                                   &keyLines[names[i].first], &stats);
    result.files.push_back({NumberedFileName(names[i].first, names[i].second), std::move(bytes)});
    result.stats.push_back(stats);
  }
  for (const auto& [family, keys] : keyLines)
    for (const auto& [key, tally] : keys)
      if (tally.lines > kMaxLinesPerKey)
        result.diagnostics.push_back({tally.file, tally.line,
                                      "key \"" + key + "\" has " + std::to_string(tally.lines) +
                                          " data lines over family " + family +
                                          "; the reader takes at most " + std::to_string(kMaxLinesPerKey)});
  for (const auto& entry : families) result.families.push_back(entry.first);
  std::stable_sort(result.diagnostics.begin(), result.diagnostics.end(),
                   [](const Diagnostic& a, const Diagnostic& b) {
                     return std::tie(a.file, a.line) < std::tie(b.file, b.line);
                   });
  if (!result.diagnostics.empty()) {
    result.files.clear();
    result.stats.clear();
  }
  return result;
}

namespace {

// What PackSources made, as pack ends: a line on each file, and the numbered
// files of the packed families that the sources no longer make. Such a file
// would still be read by the program: it goes.
ToolOutput PackOutput(PackResult result, const std::string& systemDir) {
  ToolOutput output;
  output.diagnostics = std::move(result.diagnostics);
  if (!output.diagnostics.empty()) return output;
  for (const PackStats& stats : result.stats)
    output.fileNotes.push_back(Plural(stats.keys, "key") + ", " + Plural(stats.lines, "line") +
                               (stats.marked ? ", marked" : ""));
  std::set<std::string> written;
  for (const NamedFile& file : result.files) written.insert(file.name);
  std::vector<std::string> existing;
  std::string error;
  if (ListFiles(systemDir, &existing, &error)) {
    for (const std::string& name : existing) {
      std::string family;
      int number = 0;
      if (ParseNumberedFileName(name, &family, &number) && !written.count(name) &&
          std::binary_search(result.families.begin(), result.families.end(), family))
        output.removals.push_back(name);
    }
  }
  output.files = std::move(result.files);
  return output;
}

}  // namespace

int RunPack(const std::string& sourceDir, const std::string& systemDir, std::ostream& out,
            std::ostream& err) {
  std::vector<NamedFile> sources;
  if (!ReadToolInput("jeer pack", sourceDir, ParseSourceName, "word-list sources (FAMILY.NNN.txt)", &sources,
                     err))
    return 1;
  return FinishTool("jeer pack", sourceDir, systemDir, PackOutput(PackSources(sources), systemDir), out, err);
}

}  // namespace jeerbox
