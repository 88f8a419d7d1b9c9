// Numbered file names as the tools take them apart.
#include "text/wordlist_format.h"

#include <gtest/gtest.h>

namespace jeerbox {
namespace {

TEST(NumberedFileName, TakesFamilyAndThreeDigitsApart) {
  struct Row {
    const char* name;
    const char* family;  // "" where the name isn't taken
    int number;
  };
  const Row rows[] = {
      {"Misc.001", "Misc", 1}, {"a.b.042", "a.b", 42},  {"Misc.999", "Misc", 999}, {"Misc.000", "", 0},
      {".001", "", 0},         {"Misc.01", "", 0},      {"Misc.1000", "", 0},      {"Misc.0a1", "", 0},
      {"Misc.00/", "", 0},     {"Misc.001.txt", "", 0}, {"Misc001", "", 0},
  };
  for (const Row& row : rows) {
    std::string family;
    int number = 0;
    const bool taken = *row.family != '\0';
    EXPECT_EQ(ParseNumberedFileName(row.name, &family, &number), taken) << row.name;
    if (!taken) continue;
    EXPECT_EQ(family, row.family) << row.name;
    EXPECT_EQ(number, row.number) << row.name;
  }
}

}  // namespace
}  // namespace jeerbox
