// jeer check: the families and keys of gAppPath\System, each key's lines
// read through the program's own reader.
#include "cli/checker.h"

#include "cli/check_parts.h"
#include "cli/tool_output.h"
#include "platform/file_system.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"
#include "text/wordlist_format.h"

namespace jeerbox {

int CheckReport::ProblemCount() const {
  size_t count = 0;
  for (const FamilyReport& family : families) count += family.problems.size();
  for (const KeyReport& key : keys) count += key.problems.size();
  return static_cast<int>(count);
}

CheckReport CheckSystem() {
  CheckReport report;
  report.systemDir = NativePath(CTextGenerator::SystemDirectory());
  std::map<std::string, std::set<int>> present;
  for (const ProgramKey& key : kProgramKeys) present[KeyFamily(key.key)];
  AddPresentFiles(&present);

  std::set<std::string> keys;
  for (const ProgramKey& key : kProgramKeys) keys.insert(key.key);
  std::map<std::string, FamilyScan> scans;
  for (const auto& [family, numbers] : present) {
    FamilyScan& scan = scans[family] = ScanFamily(family, numbers);
    report.families.push_back(scan.report);
    for (const auto& entry : scan.filesPerKey) keys.insert(entry.first);
  }

  TokenGraph reaches;
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
      keyReport.problems.push_back(Plural(scan.droppedPerKey.at(key), "stored line") +
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

int RunCheck(const std::string& appPath, std::ostream& out) {
  gAppPath = appPath;
  gAllowMarkedText = true;
  const CheckReport report = CheckSystem();
  PrintCheckReport(report, out);
  return report.ProblemCount() == 0 ? 0 : 1;
}

}  // namespace jeerbox
