#include "cli/unpacker.h"

#include <map>
#include <set>

#include "cli/tool_files.h"
#include "text/MSimpleCrypto.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

bool IsHead(std::string_view line) { return line.size() >= 2 && line.front() == '[' && line.back() == ']'; }

bool HoldsLineEnd(std::string_view text) { return text.find_first_of("\r\n") != std::string_view::npos; }

}  // namespace

std::string UnpackFile(const std::string& fileName, std::string_view bytes,
                       std::vector<Diagnostic>* diagnostics, std::vector<Diagnostic>* notes) {
  const std::string marker = SimpleCrypt("<XT>");
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
    if (IsHead(line)) {
      const std::string key = SimpleCrypt(line.substr(1, line.size() - 2));
      if (HoldsLineEnd(key)) diagnostics->push_back({fileName, number, "a key with a CR or LF in it"});
      emit("[" + key + "]");
      inSection = true;
    } else if (line.empty()) {
      emit("");
    } else if (line.find_first_not_of(' ') == std::string_view::npos) {
      notes->push_back({fileName, number, "a line of blanks, which the reader drops: written empty"});
      emit("");
    } else if (line == ";" + marker || (!inSection && line == marker)) {
      emit(kMarkerDirective);
    } else if (line.front() == ';') {
      if (HoldsLineEnd(line)) diagnostics->push_back({fileName, number, "a comment with a CR or LF in it"});
      emit(line);
    } else if (line.front() == '[') {
      diagnostics->push_back({fileName, number, "a line begins with \"[\" but isn't a head"});
    } else if (!inSection) {
      notes->push_back({fileName, number, "a data line in front of the first head, never read: left out"});
    } else if (line == "\r") {
      notes->push_back({fileName, number, "a lone CR, which the reader drops: left out"});
    } else {
      const std::string text = SimpleCrypt(line);
      const std::string problem = DataLineProblem(text);
      if (!problem.empty()) diagnostics->push_back({fileName, number, problem});
      if (i + 1 < lines.size() && !lines[i + 1].empty() && lines[i + 1].front() == '[')
        notes->push_back({fileName, number,
                          "a data line right in front of a head, read with a trailing CR: the "
                          "source holds it without, and pack puts an empty line in between"});
      emit(DataSourceLine(text));
    }
  }
  return source;
}

int RunUnpack(const std::string& systemDir, const std::string& sourceDir, std::ostream& out,
              std::ostream& err) {
  std::vector<std::string> names;
  std::string error;
  if (!ListFiles(systemDir, &names, &error)) {
    err << "jeer unpack: " << error << "\n";
    return 1;
  }
  std::vector<Diagnostic> diagnostics;
  std::vector<Diagnostic> notes;
  std::vector<NamedFile> sources;
  std::map<std::string, std::set<int>> families;
  for (const std::string& name : names) {
    std::string family;
    int number = 0;
    if (!ParsePackedName(name, &family, &number)) continue;
    std::string bytes;
    if (!ReadFileBytes(systemDir + "/" + name, &bytes, &error)) {
      err << "jeer unpack: " << error << "\n";
      return 1;
    }
    families[family].insert(number);
    sources.push_back({name + ".txt", UnpackFile(name, bytes, &diagnostics, &notes)});
  }
  for (const auto& [family, numbers] : families)
    if (*numbers.rbegin() != static_cast<int>(numbers.size()))
      notes.push_back(
          {family, 0, "the numbering has a gap; the program reads only the files in front of it"});
  if (sources.empty()) {
    err << "jeer unpack: no word-list files (FAMILY.NNN) in " << systemDir << "\n";
    return 1;
  }
  for (const Diagnostic& note : notes)
    err << systemDir << "/" << note.file << (note.line ? ":" + std::to_string(note.line) : "")
        << ": note: " << note.reason << "\n";
  if (!diagnostics.empty()) {
    for (const Diagnostic& diagnostic : diagnostics) err << systemDir << "/" << diagnostic.ToString() << "\n";
    err << "jeer unpack: " << diagnostics.size() << (diagnostics.size() == 1 ? " problem" : " problems")
        << "; nothing written\n";
    return 1;
  }
  if (!WriteFilesAtomically(sourceDir, sources, &error)) {
    err << "jeer unpack: " << error << "\n";
    return 1;
  }
  for (const NamedFile& source : sources) out << "  " << source.name << "\n";
  out << "jeer unpack: " << sources.size() << (sources.size() == 1 ? " file" : " files") << " written to "
      << sourceDir << "\n";
  return 0;
}

}  // namespace jeerbox
