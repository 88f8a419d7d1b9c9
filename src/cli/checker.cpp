#include "cli/checker.h"

#include <algorithm>
#include <cctype>
#include <iomanip>
#include <iterator>
#include <map>
#include <set>

#include "cli/escape.h"
#include "cli/tool_files.h"
#include "cli/wordlist_source.h"
#include "platform/file_system.h"
#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"
#include "text/shorthand.h"
#include "text/wordlist_format.h"

namespace jeerbox {

int CheckReport::ProblemCount() const {
  size_t count = 0;
  for (const FamilyReport& family : families) count += family.problems.size();
  for (const KeyReport& key : keys) count += key.problems.size();
  return static_cast<int>(count);
}

namespace {

constexpr size_t kExamples = 3;

std::string Count(int n, const std::string& thing) {
  return std::to_string(n) + " " + thing + (n == 1 ? "" : "s");
}

// Findings of one kind on a key's lines, with a few of the lines as examples.
class LineFindings {
 public:
  void Add(const std::string& what, std::string_view line) {
    Finding& finding = mFindings[what];
    if (finding.examples.size() < kExamples) finding.examples.push_back(EscapeBytes(line));
    ++finding.count;
  }
  void AppendTo(std::vector<std::string>* problems) const {
    for (const auto& [what, finding] : mFindings) {
      std::string text = Count(finding.count, "line") + " " + what + ":";
      for (const std::string& example : finding.examples) text += " \"" + example + "\"";
      if (finding.count > static_cast<int>(finding.examples.size())) text += " ...";
      problems->push_back(text);
    }
  }

 private:
  struct Finding {
    int count = 0;
    std::vector<std::string> examples;
  };
  std::map<std::string, Finding> mFindings;
};

const std::set<std::string>& KnownTokens() {
  static const std::set<std::string> tokens = [] {
    std::set<std::string> all = {"<City>", "<Player>", "<Weapon>", "<Rating>"};
    for (const ShorthandToken& shorthand : kShorthandTokens) all.insert(shorthand.token);
    return all;
  }();
  return tokens;
}

// Every "<Word>" of the text, letters only between the angle brackets.
std::vector<std::string> Tokens(const std::string& text) {
  std::vector<std::string> tokens;
  for (size_t open = text.find('<'); open != std::string::npos; open = text.find('<', open + 1)) {
    size_t end = open + 1;
    while (end < text.size() && std::isalpha(static_cast<unsigned char>(text[end]))) ++end;
    if (end > open + 1 && end < text.size() && text[end] == '>')
      tokens.push_back(text.substr(open, end - open + 1));
  }
  return tokens;
}

// The first way the text's brace groups go wrong, or "".
std::string BraceProblem(const std::string& text) {
  bool open = false;
  size_t start = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '{') {
      if (open) return "with a \"{\" inside a brace group";
      open = true;
      start = i;
    } else if (text[i] == '}') {
      if (!open) return "with a \"}\" that closes no group";
      if (i == start + 1) return "with an empty brace group \"{}\"";
      open = false;
    }
  }
  return open ? "with a \"{\" that is never closed" : "";
}

// How many texts contain none of the others: the most the composer can
// put side by side without one turning up inside another.
int SideBySide(const std::set<std::string>& texts) {
  int count = 0;
  for (const std::string& text : texts) {
    bool holdsAnother = false;
    for (const std::string& other : texts)
      if (&other != &text && text.find(other) != std::string::npos) holdsAnother = true;
    if (!holdsAnother) ++count;
  }
  return count;
}

struct FamilyScan {
  std::map<std::string, int> filesPerKey;
  std::map<std::string, int> droppedPerKey;
};

// Lines that would be data in a section: in front of the first head the
// reader never looks at them.
bool ReadsAsText(StoredLine kind) {
  return kind == StoredLine::kData || kind == StoredLine::kLoneCr || kind == StoredLine::kStrayBracket;
}

// What the reader passes over in one file: data-like lines in front of the
// first head, lines of blanks, and second sections of a key.
void ScanFile(const std::string& name, std::string_view bytes, FamilyScan* scan, FamilyReport* family) {
  std::set<std::string> keys;
  std::string current;
  int ignored = 0;
  const std::vector<std::string_view> lines = SplitCrLf(bytes);
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string where = name + ":" + std::to_string(i + 1) + ": ";
    const StoredLine kind = ClassifyStoredLine(lines[i], !current.empty());
    if (kind == StoredLine::kHead) {
      current = SimpleCrypt(HeadKey(lines[i]));
      if (!keys.insert(current).second)
        family->problems.push_back(where + "a second section of key \"" + EscapeBytes(current) +
                                   "\", never read");
      else
        ++scan->filesPerKey[current];
    } else if (kind == StoredLine::kBlanks) {
      // Right in front of a head the blanks carry the CR and are read.
      const bool beforeHead = i + 1 < lines.size() && EndsSection(lines[i + 1]);
      if (!current.empty() && !beforeHead) ++scan->droppedPerKey[current];
    } else if (current.empty() && ReadsAsText(kind)) {
      ++ignored;
    }
  }
  if (ignored > 0)
    family->problems.push_back(name + ": " + Count(ignored, "data line") +
                               " in front of the first head, never read");
}

FamilyReport CheckFamily(const std::string& family, const std::set<int>& present, FamilyScan* scan) {
  FamilyReport report;
  report.family = family;
  int n = 1;
  for (; n <= kMaxFileNumber; ++n) {
    const std::string name = NumberedFileName(family, n);
    const std::string path = JoinPath(CTextGenerator::SystemDirectory(), name);
    if (!FileExists(path)) break;
    const std::string bytes = ReadWholeFile(path);
    ++report.files;
    if (HoldsMarker(bytes)) ++report.marked;
    ScanFile(name, bytes, scan, &report);
  }
  if (n == 1)
    report.problems.push_back("no file " + NumberedFileName(family, 1) + ": nothing of the family is read");
  for (int number : present)
    if (number > n)
      report.problems.push_back(NumberedFileName(family, number) +
                                " is never read: the program stops at the missing " +
                                NumberedFileName(family, n));
  return report;
}

// A data line right in front of a head keeps the CR of its line end: its
// stored form ends in CR and the LF follows it in the file. The line points
// into the file bytes the generator holds, which end in a NUL, so the byte
// behind it can always be read.
bool CarriesLineEndCr(std::string_view stored) {
  return !stored.empty() && stored.back() == '\r' && stored.data()[stored.size()] == '\n';
}

void CheckLines(const LineList& lines, KeyReport* report,
                std::map<std::string, std::set<std::string>>* reaches) {
  LineFindings findings;
  std::set<std::string> texts;
  for (std::string_view stored : lines) {
    const std::string text = SimpleCrypt(stored);
    texts.insert(text);
    if (CarriesLineEndCr(stored))
      findings.Add("with a trailing CR (a data line right in front of a head)", text);
    if (Trim(text).empty()) findings.Add("reading as nothing", text);
    for (const std::string& token : Tokens(text)) {
      if (!KnownTokens().count(token)) findings.Add("with a token that names no key (" + token + ")", text);
      for (const ShorthandToken& shorthand : kShorthandTokens)
        if (token == shorthand.token) (*reaches)[report->key].insert(shorthand.key);
    }
    const std::string brace = BraceProblem(text);
    if (!brace.empty()) findings.Add(brace, text);
  }
  report->lines = static_cast<int>(lines.size());
  report->distinct = static_cast<int>(texts.size());
  findings.AppendTo(&report->problems);
  const auto program = std::find_if(std::begin(kProgramKeys), std::end(kProgramKeys),
                                    [&](const ProgramKey& key) { return key.key == report->key; });
  if (program == std::end(kProgramKeys)) {
    report->problems.emplace_back("the program never asks for this key");
  } else if (!lines.empty() && program->minimum > 1 && SideBySide(texts) < program->minimum) {
    report->problems.push_back("only " + std::to_string(SideBySide(texts)) +
                               " texts that don't contain one another; the composer wants " +
                               std::to_string(program->minimum));
  }
}

// A shortest chain of tokens that leads from the key back to itself, as
// the keys on the way, or empty when none does.
std::vector<std::string> CycleThrough(const std::string& key,
                                      const std::map<std::string, std::set<std::string>>& reaches) {
  std::map<std::string, std::string> parent;
  std::vector<std::string> queue = {key};
  for (size_t i = 0; i < queue.size(); ++i) {
    const auto edges = reaches.find(queue[i]);
    if (edges == reaches.end()) continue;
    for (const std::string& next : edges->second) {
      if (next == key) {
        std::vector<std::string> path = {key};
        for (std::string at = queue[i]; at != key; at = parent[at]) path.insert(path.begin() + 1, at);
        path.push_back(key);
        return path;
      }
      if (parent.emplace(next, queue[i]).second) queue.push_back(next);
    }
  }
  return {};
}

void PresentNumbers(const std::string& systemDir, std::map<std::string, std::set<int>>* families) {
  std::vector<std::string> names;
  std::string error;
  ListFiles(systemDir, &names, &error);
  for (const std::string& name : names) {
    std::string family;
    int number = 0;
    if (ParseNumberedFileName(name, &family, &number)) (*families)[family].insert(number);
  }
}

}  // namespace

CheckReport CheckSystem() {
  CheckReport report;
  report.systemDir = NativePath(CTextGenerator::SystemDirectory());
  std::map<std::string, std::set<int>> present;
  for (const ProgramKey& key : kProgramKeys) present[KeyFamily(key.key)];
  PresentNumbers(CTextGenerator::SystemDirectory(), &present);

  std::set<std::string> keys;
  for (const ProgramKey& key : kProgramKeys) keys.insert(key.key);
  std::map<std::string, FamilyScan> scans;
  for (const auto& [family, numbers] : present) {
    report.families.push_back(CheckFamily(family, numbers, &scans[family]));
    for (const auto& entry : scans[family].filesPerKey) keys.insert(entry.first);
  }

  std::map<std::string, std::set<std::string>> reaches;
  CTextGenerator generator;
  for (const std::string& key : keys) {
    KeyReport keyReport;
    keyReport.key = key;
    const FamilyScan& scan = scans[KeyFamily(key)];
    keyReport.files = scan.filesPerKey.count(key) ? scan.filesPerKey.at(key) : 0;
    LineList lines = generator.GetCacheItem(key);
    if (lines.size() == 1 && lines[0].empty()) {
      lines = LineList();
      keyReport.problems.push_back(std::string("no lines: the program would say \"") + kMissingFilesText +
                                   "\"");
    }
    CheckLines(lines, &keyReport, &reaches);
    if (scan.droppedPerKey.count(key))
      keyReport.problems.push_back(Count(scan.droppedPerKey.at(key), "stored line") +
                                   " of blanks, dropped by the reader");
    report.keys.push_back(std::move(keyReport));
  }
  for (KeyReport& keyReport : report.keys) {
    const std::vector<std::string> cycle = CycleThrough(keyReport.key, reaches);
    if (cycle.empty()) continue;
    std::string path;
    for (const std::string& step : cycle) path += (path.empty() ? "" : " -> ") + step;
    keyReport.problems.push_back("its tokens can recurse into itself: " + path);
  }
  return report;
}

void PrintCheckReport(const CheckReport& report, std::ostream& out) {
  out << "Checking " << report.systemDir << "\n\n";
  size_t width = 6;
  for (const KeyReport& key : report.keys) width = std::max(width, key.key.size());
  out << std::left << std::setw(static_cast<int>(width)) << "Family" << std::right << std::setw(7) << "Files"
      << std::setw(8) << "Marked"
      << "\n";
  int files = 0;
  for (const FamilyReport& family : report.families) {
    out << std::left << std::setw(static_cast<int>(width)) << family.family << std::right << std::setw(7)
        << family.files << std::setw(8) << family.marked << "\n";
    files += family.files;
  }
  out << "\n"
      << std::left << std::setw(static_cast<int>(width)) << "Key" << std::right << std::setw(7) << "Files"
      << std::setw(8) << "Lines" << std::setw(10) << "Distinct"
      << "  Problems\n";
  int lines = 0;
  for (const KeyReport& key : report.keys) {
    out << std::left << std::setw(static_cast<int>(width)) << key.key << std::right << std::setw(7)
        << key.files << std::setw(8) << key.lines << std::setw(10) << key.distinct << "  "
        << (key.problems.empty() ? "-" : std::to_string(key.problems.size())) << "\n";
    lines += key.lines;
  }
  const int problems = report.ProblemCount();
  if (problems > 0) {
    out << "\nProblems\n";
    for (const FamilyReport& family : report.families)
      for (const std::string& problem : family.problems)
        out << "  " << family.family << ": " << problem << "\n";
    for (const KeyReport& key : report.keys)
      for (const std::string& problem : key.problems) out << "  " << key.key << ": " << problem << "\n";
  }
  out << "\n" << report.keys.size() << " keys, " << lines << " lines in " << files << " files: ";
  if (problems == 0)
    out << "clean.\n";
  else
    out << problems << (problems == 1 ? " problem.\n" : " problems.\n");
}

int RunCheck(const std::string& appPath, std::ostream& out) {
  gAppPath = appPath;
  gAllowMarkedText = true;
  const CheckReport report = CheckSystem();
  PrintCheckReport(report, out);
  return report.ProblemCount() == 0 ? 0 : 1;
}

}  // namespace jeerbox
