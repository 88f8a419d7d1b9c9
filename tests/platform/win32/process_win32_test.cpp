// The command line after the program's name, however Windows quoted the
// program's path. (The instance mutex, the directory and the end are the
// end-to-end test's.)
#include "platform/win32/process_win32.h"

#include <gtest/gtest.h>

namespace jeerbox {
namespace {

TEST(CommandLineArguments, AreWhatFollowsTheProgramName) {
  const struct {
    const char* commandLine;
    const char* arguments;
  } cases[] = {
      {"jeerbox.exe", ""},
      {"jeerbox.exe ", ""},
      {"C:\\Jeerbox\\jeerbox.exe -x", "-x"},
      {"jeerbox.exe \t a  b ", "a  b "},
      {"\"C:\\Program Files\\Jeerbox\\jeerbox.exe\" \"two words\"", "\"two words\""},
      {"\"C:\\Program Files\\Jeerbox\\jeerbox.exe\"", ""},
      {"\"C:\\x y\\jeerbox.exe\"-x", "-x"},
      {"\"unclosed quote", ""},
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(CommandLineArguments(c.commandLine), c.arguments) << c.commandLine;
}

}  // namespace
}  // namespace jeerbox
