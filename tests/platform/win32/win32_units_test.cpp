// The Win32 host units that can be tested in-process: the command line
// after the program's name, however Windows quoted the program's path (the
// instance mutex, the directory and the end are the end-to-end test's),
// and the clipboard as other programs read it: the sentence's characters in
// Unicode and in the ANSI code page (1252 here, as Wine's default).

// Ours first: windows.h would turn names of the seams into macros.
#include "platform/win32/desktop_win32.h"
#include "platform/win32/process_win32.h"
// Then the system's.
#include <gtest/gtest.h>
#include <windows.h>

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

std::string Read(UINT format) {
  std::string bytes;
  if (!OpenClipboard(nullptr)) return "(not opened)";
  if (HANDLE data = GetClipboardData(format)) {
    const char* text = static_cast<const char*>(GlobalLock(data));
    const size_t unit = format == CF_UNICODETEXT ? 2 : 1;
    for (size_t i = 0; text && (text[i] || (unit == 2 && text[i + 1])); i += unit)
      bytes.append(text + i, unit);
    GlobalUnlock(data);
  }
  CloseClipboard();
  return bytes;
}

TEST(Win32Clipboard, HoldsTheSentenceInUnicodeAndInTheAnsiCodePage) {
  ASSERT_EQ(GetACP(), 1252u);
  // e acute, curly quotes, the euro sign: 0xE9, 0x93, 0x94, 0x80 in 1252.
  const std::string sentence = "You caf\xe9 \x93owl\x94 \x80 \r\n";
  Win32Clipboard clipboard;
  clipboard.SetText(sentence);
  EXPECT_EQ(Read(CF_TEXT), sentence);
  const std::u16string units = u"You caf\u00e9 \u201cowl\u201d \u20ac \r\n";
  EXPECT_EQ(Read(CF_UNICODETEXT), std::string(reinterpret_cast<const char*>(units.data()), units.size() * 2));
  // A second copy replaces the first.
  clipboard.SetText("You eel ");
  EXPECT_EQ(Read(CF_TEXT), "You eel ");
}

}  // namespace
}  // namespace jeerbox
