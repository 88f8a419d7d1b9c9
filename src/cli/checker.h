// jeer check: reads an installed System\ as the program reads it and tells,
// per family and key, what it holds and what will go wrong when it is used.
// CheckSystem finds it out; PrintCheckReport shows it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace jeerbox {

struct KeyReport {
  std::string key;
  int files = 0;     // files that hold a section of it
  int lines = 0;     // data lines the program reads
  int distinct = 0;  // distinct texts among them
  std::vector<std::string> problems;
};

struct FamilyReport {
  std::string family;
  int files = 0;   // files the program reads, 001 up to the first gap
  int marked = 0;  // of those, files holding the marker
  std::vector<std::string> problems;
};

struct CheckReport {
  std::string systemDir;
  std::vector<FamilyReport> families;
  std::vector<KeyReport> keys;
  int ProblemCount() const;
};

// Checks gAppPath\System through the program's own reader.
CheckReport CheckSystem();

void PrintCheckReport(const CheckReport& report, std::ostream& out);

// The whole command for the program directory `appPath`; returns the exit
// code: 0 clean, 1 with problems.
int RunCheck(const std::string& appPath, std::ostream& out);

}  // namespace jeerbox
