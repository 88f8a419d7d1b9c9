#include "cli/unpacker.h"

#include <map>
#include <set>

#include "cli/tool_output.h"
#include "text/MSimpleCrypto.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

bool HoldsLineEnd(std::string_view text) { return text.find_first_of("\r\n") != std::string_view::npos; }

}  // namespace

std::string UnpackFile(const std::string& fileName, std::string_view bytes,
                       std::vector<Diagnostic>* diagnostics, std::vector<Diagnostic>* notes) {
  const std::vector<std::string_view> lines = SplitCrLf(bytes);
  std::string source;
  bool inSection = false;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string_view line = lines[i];
    const int number = static_cast<int>(i + 1);
    auto emit = [&source](std::string_view text) {
      source += text;
      source += '\n';
    };
    auto note = [&](const char* reason) { notes->push_back({fileName, number, reason}); };
    const StoredLine kind = ClassifyStoredLine(line, inSection);
    switch (kind) {
      case StoredLine::kHead: {
        const std::string key = SimpleCrypt(HeadKey(line));
        if (HoldsLineEnd(key)) diagnostics->push_back({fileName, number, "a key with a CR or LF in it"});
        emit("[" + key + "]");
        inSection = true;
        break;
      }
      case StoredLine::kEmpty:
        emit("");
        break;
      case StoredLine::kBlanks:
        note("a line of blanks, which the reader drops: written empty");
        emit("");
        break;
      case StoredLine::kMarker:
        emit(kMarkerDirective);
        break;
      case StoredLine::kComment:
        if (HoldsLineEnd(line)) diagnostics->push_back({fileName, number, "a comment with a CR or LF in it"});
        emit(line);
        break;
      case StoredLine::kStrayBracket:
        diagnostics->push_back({fileName, number, "a line begins with \"[\" but isn't a head"});
        break;
      case StoredLine::kLoneCr:
      case StoredLine::kData:
        if (!inSection) {
          note("a data line in front of the first head, never read: left out");
        } else if (kind == StoredLine::kLoneCr) {
          note("a lone CR, which the reader drops: left out");
        } else {
          const std::string text = SimpleCrypt(line);
          const std::string problem = DataLineProblem(text);
          if (!problem.empty()) diagnostics->push_back({fileName, number, problem});
          if (i + 1 < lines.size() && EndsSection(lines[i + 1]))
            note(
                "a data line right in front of a head, read with a trailing CR: the source holds it without, "
                "and pack puts an empty line in between");
          emit(DataSourceLine(text));
        }
        break;
    }
  }
  return source;
}

int RunUnpack(const std::string& systemDir, const std::string& sourceDir, std::ostream& out,
              std::ostream& err) {
  std::vector<NamedFile> packed;
  if (!ReadToolInput("jeer unpack", systemDir, ParseNumberedFileName, "word-list files (FAMILY.NNN)", &packed,
                     err))
    return 1;
  ToolOutput output;
  std::map<std::string, std::set<int>> families;
  for (const NamedFile& file : packed) {
    std::string family;
    int number = 0;
    ParseNumberedFileName(file.name, &family, &number);
    families[family].insert(number);
    output.files.push_back(
        {file.name + ".txt", UnpackFile(file.name, file.bytes, &output.diagnostics, &output.notes)});
  }
  for (const auto& [family, numbers] : families)
    if (*numbers.rbegin() != static_cast<int>(numbers.size()))
      output.notes.push_back(
          {family, 0, "the numbering has a gap; the program reads only the files in front of it"});
  return FinishTool("jeer unpack", systemDir, sourceDir, output, out, err);
}

}  // namespace jeerbox
