// jeer check, the report: the family and key tables, the problems, and one
// line that sums them up.
#include <algorithm>
#include <iomanip>

#include "cli/checker.h"

namespace jeerbox {

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

}  // namespace jeerbox
