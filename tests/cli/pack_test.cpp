// jeer pack and unpack: what they refuse, and that the program reads back
// exactly what the sources say.
#include <gtest/gtest.h>

#include "cli/unpacker.h"
#include "helpers/memory_file_system.h"
#include "helpers/scrambled_writer.h"
#include "helpers/temp_dir.h"
#include "platform/file_system.h"
#include "wordlist_test_util.h"

namespace jeerbox::testing {
namespace {

std::vector<Diagnostic> Refusals(const std::vector<NamedFile>& sources) {
  const PackResult result = PackSources(sources);
  if (!result.diagnostics.empty()) {
    EXPECT_TRUE(result.files.empty());
  }
  return result.diagnostics;
}

std::string Pack(const std::string& source, const std::string& name = "Misc.001.txt") {
  const PackResult result = PackSources({{name, source}});
  EXPECT_TRUE(result.diagnostics.empty()) << result.diagnostics.front().ToString();
  return result.files.empty() ? std::string() : result.files.front().bytes;
}

std::string Unpack(const std::string& packed) {
  std::vector<Diagnostic> diagnostics, notes;
  std::string source = UnpackFile("Misc.001", packed, &diagnostics, &notes);
  EXPECT_TRUE(diagnostics.empty()) << diagnostics.front().ToString();
  return source;
}

struct RefusalCase {
  const char* what;
  std::string source;
  int line;
  const char* reason;
};

TEST(PackRefusals, EachNamesTheFileTheLineAndTheReason) {
  const std::string storedB = SimpleCrypt("Misc-B");
  ASSERT_EQ(storedB.find_first_of("\r\n"), std::string::npos);
  const RefusalCase cases[] = {
      {"stored form begins with ;", "[Misc-A]\njolly\n", 2, "can't begin with \"j\""},
      {"line of blanks", "[Misc-A]\nx\n   \n", 3, "a line of blanks"},
      {"data line of blanks", "[Misc-A]\n\\   \n", 2, "blanks only"},
      {"CR inside a line", "[Misc-A]\nab\rcd\n", 2, "CR inside"},
      {"empty data line", "[Misc-A]\n\\\n", 2, "empty data line"},
      {"stored form all blanks", "[Misc-A]\nquo\n", 2, "would be blanks only"},
      {"stored form holds CR LF", "[Misc-A]\naXE\n", 2, "CR LF"},
      {"stored form lone CR", "[Misc-A]\n\\\\\n", 2, "lone CR"},
      {"key without hyphen", "[MiscA]\nx\n", 1, "no hyphen"},
      {"key with ~", "[Misc-A~B]\nx\n", 1, "\"~\""},
      {"key of another family", "[General-A]\nx\n", 1, "belongs to family \"General\""},
      {"head not closed", "[Misc-A\n", 1, "a head is"},
      {"unknown directive", "@secret\n[Misc-A]\nx\n", 1, "unknown directive"},
      {"data in front of first head", "x\n[Misc-A]\ny\n", 1, "in front of the first head"},
      {"duplicate section", "[Misc-A]\nx\n\n[Misc-A]\ny\n", 4, "already has a section at line 1"},
      {"key in an earlier comment", ";" + storedB + "\n[Misc-B]\nx\n", 2, "in a comment at line 1"},
      {"key in an earlier data line", "[Misc-A]\nMisc-B rules\n\n[Misc-B]\ny\n", 4,
       "in a data line at line 2"},
      {"key begins a longer head", "[Misc-BB]\nx\n\n[Misc-B]\ny\n", 4,
       "in the head of key \"Misc-BB\" at line 1"},
  };
  for (const RefusalCase& c : cases) {
    const std::vector<Diagnostic> found = Refusals({{"Misc.001.txt", c.source}});
    ASSERT_EQ(found.size(), 1u) << c.what;
    EXPECT_EQ(found[0].file, "Misc.001.txt") << c.what;
    EXPECT_EQ(found[0].line, c.line) << c.what << ": " << found[0].ToString();
    EXPECT_NE(found[0].reason.find(c.reason), std::string::npos) << c.what << ": " << found[0].reason;
  }
}

TEST(PackRefusals, AGapInAFamilysNumbering) {
  const std::vector<Diagnostic> found =
      Refusals({{"Misc.001.txt", "[Misc-A]\nx\n"}, {"Misc.003.txt", "[Misc-A]\ny\n"}});
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].ToString(),
            "Misc.003.txt: family Misc has no file Misc.002.txt in front of this one; the program "
            "stops reading at the gap");
  EXPECT_EQ(Refusals({{"Misc.002.txt", "[Misc-A]\nx\n"}}).size(), 1u);
}

TEST(PackRefusals, MoreLinesThanTheReaderCounts) {
  std::string many = "[Misc-A]\n";
  for (int i = 0; i < 20000; ++i) many += "x\n";
  EXPECT_TRUE(Refusals({{"Misc.001.txt", many}}).empty());
  const std::vector<Diagnostic> overFamily = Refusals({{"Misc.001.txt", many}, {"Misc.002.txt", many}});
  ASSERT_EQ(overFamily.size(), 1u);
  EXPECT_EQ(overFamily[0].line, 1);
  EXPECT_NE(overFamily[0].reason.find("40000 data lines"), std::string::npos);
  for (int i = 0; i < 12768; ++i) many += "x\n";
  const std::vector<Diagnostic> oneSection = Refusals({{"Misc.001.txt", many}});
  ASSERT_FALSE(oneSection.empty());
  EXPECT_NE(oneSection[0].reason.find("32767"), std::string::npos);
}

TEST(PackRefusals, EveryProblemIsReportedNotJustTheFirst) {
  EXPECT_EQ(Refusals({{"Misc.001.txt", "[Misc-A]\njam\n   \n\n[NoHyphen]\n"},
                      {"General.001.txt", "[General-A]\njelly\n"}})
                .size(),
            4u);
}

// A source in canonical form: LF line ends, a final LF, an empty line or a
// comment in front of every head that follows a section.
const std::string kCanonical =
    "; Jeerbox test list\n"
    "@marked\n"
    "\n"
    "[Misc-Jeerbox-Noun]\n"
    "turnip\n"
    "caf\xe9 owner\n"
    "\\;semicolon first\n"
    "\\[bracket first\n"
    "\\@at first\n"
    "\\\\backslash first\n"
    "; a comment inside\n"
    "{soggy/damp} <Insult>\n"
    "\n"
    "\n"
    "[Misc-Jeerbox-Adjective]\n"
    "@marked\n"
    "odious\n";

TEST(PackRoundTrip, UnpackGivesBackCanonicalSourcesByteForByte) {
  const std::string packed = Pack(kCanonical);
  EXPECT_EQ(Unpack(packed), kCanonical);
  EXPECT_NE(packed.find(";" + SimpleCrypt("<XT>") + "\r\n"), std::string::npos);
  EXPECT_EQ(packed.find('\n'), packed.find("\r\n") + 1);
}

TEST(PackRoundTrip, TheProgramReadsEachDataLineAsWritten) {
  TempDir root;
  root.Write("System/Misc.001", Pack(kCanonical));
  EXPECT_EQ(ReadList(root.Path(), "Misc-Jeerbox-Noun"),
            (std::vector<std::string>{"turnip", "caf\xe9 owner", ";semicolon first", "[bracket first",
                                      "@at first", "\\backslash first", "{soggy/damp} <Insult>"}));
  EXPECT_EQ(ReadList(root.Path(), "Misc-Jeerbox-Adjective"), std::vector<std::string>{"odious"});
}

TEST(PackRoundTrip, CrLfSourcesAndHeadsRightBehindDataReadTheSame) {
  // CR LF line ends, no final line end, a head straight after a data line.
  const std::string packed = Pack("[Misc-A]\r\none\r\ntwo\r\n[Misc-B]\r\nthree");
  EXPECT_EQ(packed, "[" + SimpleCrypt("Misc-A") + "]\r\n" + SimpleCrypt("one") + "\r\n" + SimpleCrypt("two") +
                        "\r\n\r\n[" + SimpleCrypt("Misc-B") + "]\r\n" + SimpleCrypt("three") + "\r\n");
  TempDir root;
  root.Write("System/Misc.001", packed);
  EXPECT_EQ(ReadList(root.Path(), "Misc-A"), (std::vector<std::string>{"one", "two"}));
  EXPECT_EQ(ReadList(root.Path(), "Misc-B"), std::vector<std::string>{"three"});
  EXPECT_EQ(Unpack(packed), "[Misc-A]\none\ntwo\n\n[Misc-B]\nthree\n");
}

TEST(PackRoundTrip, UnpackThenPackReadsTheSameLists) {
  ScrambledWriter file;
  file.Marker()
      .Comment("made by hand")
      .Section("Misc-A")
      .Lines({"alpha", ";not a comment", "  padded  "})
      .Raw("   ")
      .Section("Misc-B")
      .Lines({"beta", "gamma"})
      .NoFinalLineEnd();
  TempDir before, after;
  before.Write("System/Misc.001", file.Bytes());
  std::vector<Diagnostic> diagnostics, notes;
  const std::string source = UnpackFile("Misc.001", file.Bytes(), &diagnostics, &notes);
  ASSERT_TRUE(diagnostics.empty());
  EXPECT_EQ(notes.size(), 1u);  // the line of blanks
  after.Write("System/Misc.001", Pack(source));
  for (const char* key : {"Misc-A", "Misc-B"})
    EXPECT_EQ(ReadList(before.Path(), key), ReadList(after.Path(), key)) << key;
  EXPECT_NE(DirContents(after.Path() + "/System")["Misc.001"].find(SimpleCrypt("<XT>")), std::string::npos);
}

TEST(Unpack, RefusesWhatASourceCannotHold) {
  std::vector<Diagnostic> diagnostics, notes;
  ScrambledWriter file;
  file.Section("Misc-A").Line("two\nlines").Comment("a\rb").Raw("[broken");
  UnpackFile("Misc.001", file.Bytes(), &diagnostics, &notes);
  ASSERT_EQ(diagnostics.size(), 3u);
  EXPECT_EQ(diagnostics[0].line, 2);
  EXPECT_EQ(diagnostics[1].line, 3);
  EXPECT_EQ(diagnostics[2].line, 4);
}

// A file that can't be renamed into place: the one before it is replaced
// already, but no temporary file stays behind.
TEST(PackWrite, AFailedRenameLeavesNoTemporaryFile) {
  MemoryFileSystem files;
  ScopedFileSystem scoped(&files);
  files.Write("src\\Misc.001.txt", "[Misc-A]\nx\n");
  files.Write("src\\Misc.002.txt", "[Misc-B]\ny\n");
  files.AddUnreadable("sys\\Misc.002");
  std::ostringstream out, err;
  EXPECT_EQ(RunPack("src", "sys", out, err), 1);
  EXPECT_EQ(err.str(), "jeer pack: " + NativePath("sys\\Misc.002") + ": Permission denied\n");
  std::vector<std::string> left;
  for (const auto& [path, bytes] : files.Files()) left.push_back(path);
  EXPECT_EQ(left, (std::vector<std::string>{"src\\Misc.001.txt", "src\\Misc.002.txt", "sys\\Misc.001"}));
}

class PackCommand : public ::testing::Test {
 protected:
  std::string Args() const { return sources.Path() + " " + target.Path() + "/System"; }
  TempDir sources;
  TempDir target;
};

TEST_F(PackCommand, AFailedPackLeavesTheTargetAsItWas) {
  target.Write("System/Misc.001", "old bytes");
  target.Write("System/Misc.002", "old extra");
  sources.Write("Misc.001.txt", "[Misc-A]\nfine\n");
  sources.Write("General.001.txt", "[General-A]\nfine\n\n[General-B]\njunk\n");
  const auto before = DirContents(target.Path() + "/System");
  const ToolRun run = RunJeer("pack " + Args());
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_NE(run.err.find(NativePath(sources.Path() + "\\General.001.txt") +
                         ":5: a data line can't begin with \"j\""),
            std::string::npos)
      << run.err;
  EXPECT_NE(run.err.find("nothing written"), std::string::npos);
  EXPECT_EQ(DirContents(target.Path() + "/System"), before);
}

TEST_F(PackCommand, ReplacesTheFamiliesItPacksAndNothingElse) {
  target.Write("System/Misc.001", "old");
  target.Write("System/Misc.002", "stale");
  target.Write("System/Misc.004", "stale too");
  target.Write("System/Other.001", "another family");
  target.Write("System/notes.txt", "not a list");
  sources.Write("Misc.001.txt", "[Misc-A]\nfresh\n");
  sources.Write("README.md", "ignored");
  const ToolRun run = RunJeer("pack " + Args());
  EXPECT_EQ(run.exitCode, 0) << run.err;
  const auto after = DirContents(target.Path() + "/System");
  EXPECT_EQ(after.size(), 3u);
  EXPECT_EQ(after.count("Other.001") + after.count("notes.txt") + after.count("Misc.001"), 3u);
  EXPECT_EQ(ReadList(target.Path(), "Misc-A"), std::vector<std::string>{"fresh"});
  EXPECT_NE(run.out.find("Misc.004  removed"), std::string::npos) << run.out;
}

TEST_F(PackCommand, UnpackWritesSourcesThatPackBackToTheSameBytes) {
  sources.Write("Misc.001.txt", kCanonical);
  sources.Write("General.001.txt", "[General-Insult]\na kipper\n");
  ASSERT_EQ(RunJeer("pack " + Args()).exitCode, 0);
  TempDir unpacked;
  const ToolRun run = RunJeer("unpack " + target.Path() + "/System " + unpacked.Path());
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(DirContents(unpacked.Path()), DirContents(sources.Path()));
}

TEST_F(PackCommand, UsageAndMissingDirectories) {
  EXPECT_EQ(RunJeer("pack").exitCode, 2);
  EXPECT_EQ(RunJeer("pack " + sources.Path()).exitCode, 2);
  const ToolRun empty = RunJeer("pack " + Args());
  EXPECT_EQ(empty.exitCode, 1);
  EXPECT_NE(empty.err.find("no word-list sources"), std::string::npos);
  EXPECT_EQ(RunJeer("unpack /nonexistent/dir " + sources.Path()).exitCode, 1);
  EXPECT_NE(RunJeer("pack --help").out.find("@marked"), std::string::npos);
}

}  // namespace
}  // namespace jeerbox::testing
