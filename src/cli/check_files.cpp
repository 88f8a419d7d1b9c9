// jeer check, the files: which the program reads, which are marked, and
// what the reader passes over in them.
#include <set>

#include "cli/check_parts.h"
#include "cli/escape.h"
#include "cli/tool_files.h"
#include "cli/tool_output.h"
#include "support/MSimpleIO.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

// Lines that would be data in a section: in front of the first head the
// reader never looks at them.
bool ReadsAsText(StoredLine kind) {
  return kind == StoredLine::kData || kind == StoredLine::kLoneCr || kind == StoredLine::kStrayBracket;
}

// Data-like lines in front of the first head, lines of blanks, and second
// sections of a key.
void ScanFile(const std::string& name, std::string_view bytes, FamilyScan* scan) {
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
        scan->report.problems.push_back(where + "a second section of key \"" + EscapeBytes(current) +
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
    scan->report.problems.push_back(name + ": " + Plural(ignored, "data line") +
                                    " in front of the first head, never read");
}

}  // namespace

void AddPresentFiles(std::map<std::string, std::set<int>>* families) {
  std::vector<std::string> names;
  std::string error;
  ListFiles(CTextGenerator::SystemDirectory(), &names, &error);
  for (const std::string& name : names) {
    std::string family;
    int number = 0;
    if (ParseNumberedFileName(name, &family, &number)) (*families)[family].insert(number);
  }
}

FamilyScan ScanFamily(const std::string& family, const std::set<int>& present) {
  FamilyScan scan;
  FamilyReport& report = scan.report;
  report.family = family;
  int n = 1;
  for (; n <= kMaxFileNumber; ++n) {
    const std::string name = NumberedFileName(family, n);
    const std::string path = JoinPath(CTextGenerator::SystemDirectory(), name);
    if (!FileExists(path)) break;
    const std::string bytes = ReadWholeFile(path);
    ++report.files;
    if (HoldsMarker(bytes)) ++report.marked;
    ScanFile(name, bytes, &scan);
  }
  if (n == 1)
    report.problems.push_back("no file " + NumberedFileName(family, 1) + ": nothing of the family is read");
  for (int number : present)
    if (number > n)
      report.problems.push_back(NumberedFileName(family, number) +
                                " is never read: the program stops at the missing " +
                                NumberedFileName(family, n));
  return scan;
}

}  // namespace jeerbox
