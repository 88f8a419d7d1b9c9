// The process facts: the command line after the program's name, the
// program's directory, and the instance mutex.
#include "platform/win32/process_win32.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>

#include "platform/file_system.h"

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

TEST(Win32Process, FindsItsOwnDirectory) {
  Win32Process process("Jeerbox.Test.Directory");
  EXPECT_TRUE(HostFileSystem().FileExists(process.ExecutableDirectory() + "\\win32_tests.exe"));
}

TEST(Win32Process, ThePlaceIsTakenUntilItsHolderGoes) {
  auto first = std::make_unique<Win32Process>("Jeerbox.Test.Instance");
  Win32Process second("Jeerbox.Test.Instance");
  EXPECT_FALSE(first->PrevInstance());
  EXPECT_FALSE(first->PrevInstance());  // its own place
  EXPECT_TRUE(second.PrevInstance());
  EXPECT_FALSE(Win32Process("Jeerbox.Test.Other").PrevInstance());
  first.reset();
  EXPECT_FALSE(second.PrevInstance());
}

TEST(Win32Process, EndLeavesTheMessageLoop) {
  Win32Process process("Jeerbox.Test.End");
  EXPECT_FALSE(process.Ended());
  process.End();
  EXPECT_TRUE(process.Ended());
  MSG message;
  EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

}  // namespace
}  // namespace jeerbox
