// jeer pack and unpack: what they refuse, and that the program reads back
// exactly what the sources say.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>

#include "cli/packer.h"
#include "cli/unpacker.h"
#include "helpers/fake_file_system.h"
#include "helpers/run_command.h"
#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"
#include "support/globals.h"

namespace jeerbox::testing {
namespace {

// Every file of the folder `sub` of `dir`, name to bytes.
std::map<std::string, std::string> DirContents(const TempDir& dir, const std::string& sub = ".") {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(dir.Path() + "/" + sub)) {
    const std::string name = entry.path().filename().string();
    files[name] = dir.Read(sub + "/" + name);
  }
  return files;
}

std::string Pack(const std::string& source) {
  const PackResult result = PackSources({{"Misc.001.txt", source}});
  EXPECT_TRUE(result.diagnostics.empty()) << result.diagnostics.front().ToString();
  return result.files.empty() ? std::string() : result.files.front().bytes;
}

std::string Unpack(const std::string& packed, size_t notes = 0) {
  std::vector<Diagnostic> diagnostics, noted;
  std::string source = UnpackFile("Misc.001", packed, &diagnostics, &noted);
  EXPECT_TRUE(diagnostics.empty()) << diagnostics.front().ToString();
  EXPECT_EQ(noted.size(), notes);
  return source;
}

TEST(PackRefusals, EachNamesTheLineAndTheReasonAndNothingIsPacked) {
  const std::string storedB = SimpleCrypt("Misc-B");
  ASSERT_EQ(storedB.find_first_of("\r\n"), std::string::npos);
  // Rows: source, line, reason.
  const std::tuple<std::string, int, const char*> rows[] = {
      {"[Misc-A]\njolly\n", 2, "can't begin with \"j\""},  // stored, it begins with ";"
      {"[Misc-A]\nx\n   \n", 3, "a line of blanks"},
      {"[Misc-A]\n\\   \n", 2, "blanks only"},
      {"[Misc-A]\nab\rcd\n", 2, "CR inside"},
      {"[Misc-A]\n\\\n", 2, "empty data line"},
      {"[Misc-A]\nquo\n", 2, "would be blanks only"},
      {"[Misc-A]\naXE\n", 2, "CR LF"},
      {"[Misc-A]\n\\\\\n", 2, "lone CR"},
      {"[MiscA]\nx\n", 1, "no hyphen"},
      {"[Misc-A~B]\nx\n", 1, "\"~\""},
      {"[General-A]\nx\n", 1, "belongs to family \"General\""},
      {"[Misc-A\n", 1, "a head is"},
      {"[]\n", 1, "a head is"},
      {"@secret\n[Misc-A]\nx\n", 1, "unknown directive"},
      {"x\n[Misc-A]\ny\n", 1, "in front of the first head"},
      {"[Misc-A]\nx\n\n[Misc-A]\ny\n", 4, "already has a section at line 1"},
      {";" + storedB + "\n[Misc-B]\nx\n", 2, "in a comment at line 1"},
      {"[Misc-A]\nMisc-B rules\n\n[Misc-B]\ny\n", 4, "in a data line at line 2"},
      {"[Misc-BB]\nx\n\n[Misc-B]\ny\n", 4, "in the head of key \"Misc-BB\" at line 1"}};
  for (const auto& [source, line, reason] : rows) {
    const PackResult result = PackSources({{"Misc.001.txt", source}});
    ASSERT_EQ(result.diagnostics.size(), 1u) << source;
    EXPECT_TRUE(result.files.empty()) << source;
    EXPECT_NE(result.diagnostics[0].ToString().find("Misc.001.txt:" + std::to_string(line) + ": "),
              std::string::npos)
        << source;
    EXPECT_NE(result.diagnostics[0].reason.find(reason), std::string::npos)
        << source << result.diagnostics[0].reason;
  }
}

TEST(PackRefusals, OverTheFilesOfAFamily) {
  const auto lines = [](int n) {
    std::string source = "[Misc-A]\n";
    for (int i = 0; i < n; ++i) source += "x\n";
    return source;
  };
  // Rows: sources, problems, first.
  const std::tuple<std::vector<NamedFile>, size_t, const char*> rows[] = {
      {{{"Misc.001.txt", lines(20000)}, {"Misc.002.txt", lines(12767)}}, 0, ""},
      {{{"Misc.001.txt", lines(20000)}, {"Misc.002.txt", lines(12768)}}, 1, "32768 data lines"},
      {{{"Misc.001.txt", lines(32768)}}, 2, "the section runs to"},
      {{{"Misc.001.txt", lines(1)}, {"Misc.003.txt", lines(1)}}, 1, "no file Misc.002.txt in front"},
      {{{"Misc.002.txt", lines(1)}}, 1, "no file Misc.001.txt"},
      {{{"Misc.001.txt", "[Misc-A]\njam\n   \n\n[NoHyphen]\n"}, {"General.001.txt", "[General-A]\njelly\n"}},
       4,
       ""}};
  for (const auto& [sources, problems, first] : rows) {
    const PackResult result = PackSources(sources);
    ASSERT_EQ(result.diagnostics.size(), problems) << sources.back().name;
    EXPECT_EQ(result.files.empty(), problems > 0);
    if (problems > 0) {
      EXPECT_NE(result.diagnostics[0].ToString().find(first), std::string::npos) << first;
    }
  }
}

// Canonical: LF line ends, a final LF, an empty line or a comment in front
// of every head that follows a section.
const std::string kCanonical =
    "; Jeerbox test list\n@marked\n\n[Misc-Jeerbox-Noun]\nturnip\ncaf\xe9 owner\n\\;semicolon first\n"
    "\\[bracket first\n\\@at first\n\\\\backslash first\n; a comment inside\n{soggy/damp} <Insult>\n\n\n"
    "[Misc-Jeerbox-Adjective]\n@marked\nodious\n";

TEST(PackRoundTrip, TheProgramReadsEachDataLineAsWrittenAndUnpackGivesTheSourceBack) {
  const std::string packed = Pack(kCanonical);
  EXPECT_EQ(Unpack(packed), kCanonical);
  FakeFileSystem files;
  files.Write("C:\\app\\System\\Misc.001", packed);
  gAppPath = "C:\\app";
  EXPECT_EQ(ReadKeyLines("Misc-Jeerbox-Noun"),
            (std::vector<std::string>{"turnip", "caf\xe9 owner", ";semicolon first", "[bracket first",
                                      "@at first", "\\backslash first", "{soggy/damp} <Insult>"}));
  EXPECT_EQ(ReadKeyLines("Misc-Jeerbox-Adjective"), std::vector<std::string>{"odious"});
  gAllowMarkedText = false;  // the marker went in
  EXPECT_EQ(ReadKeyLines("Misc-Jeerbox-Adjective"), std::vector<std::string>{""});
  gAllowMarkedText = true;
}

TEST(PackRoundTrip, CrLfSourcesAndHeadsRightBehindDataReadTheSame) {
  const std::string packed = Pack("[Misc-A]\r\none\r\ntwo\r\n[Misc-B]\r\nthree");
  EXPECT_EQ(packed, "[" + SimpleCrypt("Misc-A") + "]\r\n" + SimpleCrypt("one") + "\r\n" + SimpleCrypt("two") +
                        "\r\n\r\n[" + SimpleCrypt("Misc-B") + "]\r\n" + SimpleCrypt("three") + "\r\n");
  EXPECT_EQ(Unpack(packed), "[Misc-A]\none\ntwo\n\n[Misc-B]\nthree\n");
}

TEST(PackRoundTrip, UnpackThenPackReadsTheSameLists) {
  ScrambledWriter file;
  file.Marker().Comment("made by hand").Section("Misc-A").Lines({"alpha", ";not a comment", "  padded  "});
  file.Raw("   ").Section("Misc-B").Lines({"beta", "gamma"}).NoFinalLineEnd();
  const std::string repacked = Pack(Unpack(file.Bytes(), 1));  // noted: the line of blanks
  EXPECT_NE(repacked.find(SimpleCrypt("<XT>")), std::string::npos);
  FakeFileSystem files;
  gAppPath = "C:\\app";
  for (const char* key : {"Misc-A", "Misc-B"}) {
    files.Write("C:\\app\\System\\Misc.001", file.Bytes());
    const std::vector<std::string> before = ReadKeyLines(key);
    files.Write("C:\\app\\System\\Misc.001", repacked);
    EXPECT_EQ(ReadKeyLines(key), before) << key;
  }
  std::vector<Diagnostic> diagnostics, notes;
  ScrambledWriter bad;
  UnpackFile("Misc.001", bad.Section("Misc-A").Line("two\nlines").Comment("a\rb").Raw("[broken").Bytes(),
             &diagnostics, &notes);
  ASSERT_EQ(diagnostics.size(), 3u);  // what a source can't hold
  EXPECT_EQ(diagnostics[2].line, 4);
}

// A refused pack writes nothing; a failed rename leaves the file before it
// replaced already, and no temporary file.
TEST(PackWrite, AllOrNothing) {
  TempDir dir;
  const std::string sources = dir.Path() + "/src", system = dir.Path() + "/sys";
  dir.Write("src/Misc.001.txt", "[Misc-A]\njolly\n");
  dir.Write("sys/Misc.002/in the way", "");  // a directory where a file should go
  std::ostringstream out, err;
  EXPECT_EQ(RunPack(sources, system, out, err), 1);
  EXPECT_EQ(DirContents(dir, "sys").size(), 1u);
  dir.Write("src/Misc.001.txt", "[Misc-A]\nx\n");
  dir.Write("src/Misc.002.txt", "[Misc-B]\ny\n");
  EXPECT_EQ(RunPack(sources, system, out, err), 1);
  const std::map<std::string, std::string> left = DirContents(dir, "sys");
  EXPECT_EQ(left.size(), 2u);
  EXPECT_NE(left.find("Misc.001"), left.end());
}

TEST(PackCommand, ReplacesTheFamiliesItPacksAndUnpacksThemBack) {
  TempDir sources, target;
  for (const char* name : {"Misc.001", "Misc.002", "Misc.004", "Other.001", "notes.txt"})
    target.Write(std::string("System/") + name, "old");
  sources.Write("Misc.001.txt", kCanonical);
  sources.Write("General.001.txt", "[General-Insult]\na kipper\n");
  sources.Write("General.002.txt", "[General-Curse]\n");
  const CommandRun run = RunJeer("pack " + sources.Path() + " " + target.Path() + "/System");
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_NE(run.out.find("1 key, 0 lines"), std::string::npos) << run.out;
  std::map<std::string, std::string> after = DirContents(target, "System");
  EXPECT_EQ(after.count("Misc.002") + after.count("Misc.004"), 0u);
  EXPECT_EQ(after["Other.001"] + after["notes.txt"], "oldold");
  EXPECT_EQ(after["Misc.001"], Pack(kCanonical));
  TempDir unpacked;
  ASSERT_EQ(RunJeer("unpack " + target.Path() + "/System " + unpacked.Path()).exitCode, 0);
  std::map<std::string, std::string> back = DirContents(unpacked);
  back.erase("Other.001.txt");  // unpacked too, from a family pack left alone
  EXPECT_EQ(back, DirContents(sources));
  target.Write("System/Misc.003", "after a gap");
  EXPECT_NE(RunJeer("unpack " + target.Path() + "/System " + unpacked.Path()).err.find("numbering has a gap"),
            std::string::npos);
}

}  // namespace
}  // namespace jeerbox::testing
