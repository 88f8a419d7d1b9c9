#include "cli/tool_output.h"

#include "platform/file_system.h"

namespace jeerbox {

std::string Plural(size_t n, const std::string& thing) {
  return std::to_string(n) + " " + thing + (n == 1 ? "" : "s");
}

bool ReadToolInput(const std::string& command, const std::string& dir, NameParser parse,
                   const std::string& what, std::vector<NamedFile>* files, std::ostream& err) {
  std::vector<std::string> names;
  std::string error;
  bool read = ListFiles(dir, &names, &error);
  for (size_t i = 0; read && i < names.size(); ++i) {
    std::string family;
    int number = 0;
    if (!parse(names[i], &family, &number)) continue;
    files->push_back({names[i], ""});
    read = ReadFileBytes(JoinPath(dir, names[i]), &files->back().bytes, &error);
  }
  if (!read) {
    err << command << ": " << error << "\n";
    return false;
  }
  if (files->empty()) {
    err << command << ": no " << what << " in " << NativePath(dir) << "\n";
    return false;
  }
  return true;
}

int FinishTool(const std::string& command, const std::string& readDir, const std::string& writeDir,
               const ToolOutput& output, std::ostream& out, std::ostream& err) {
  auto where = [&readDir](const Diagnostic& finding) {
    return Diagnostic{NativePath(JoinPath(readDir, finding.file)), finding.line, finding.reason};
  };
  for (const Diagnostic& note : output.notes) {
    const Diagnostic shown = where(note);
    err << shown.file << (shown.line ? ":" + std::to_string(shown.line) : "") << ": note: " << shown.reason
        << "\n";
  }
  if (!output.diagnostics.empty()) {
    for (const Diagnostic& diagnostic : output.diagnostics) err << where(diagnostic).ToString() << "\n";
    err << command << ": " << Plural(output.diagnostics.size(), "problem") << "; nothing written\n";
    return 1;
  }
  std::string error;
  if (!WriteFilesAtomically(writeDir, output.files, &error) ||
      !RemoveFiles(writeDir, output.removals, &error)) {
    err << command << ": " << error << "\n";
    return 1;
  }
  for (size_t i = 0; i < output.files.size(); ++i) {
    const bool noted = i < output.fileNotes.size() && !output.fileNotes[i].empty();
    out << "  " << output.files[i].name << (noted ? "  " + output.fileNotes[i] : "") << "\n";
  }
  for (const std::string& name : output.removals)
    out << "  " << name << "  removed: no source has it any more\n";
  out << command << ": " << Plural(output.files.size(), "file") << " written to " << NativePath(writeDir)
      << "\n";
  return 0;
}

}  // namespace jeerbox
