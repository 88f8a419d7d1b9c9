// jeer check, the lines of a key: texts that read as nothing or keep a CR,
// unknown tokens, bad brace groups, too few adjectives; and token loops.
#include <algorithm>
#include <cctype>
#include <iterator>

#include "cli/check_parts.h"
#include "cli/escape.h"
#include "cli/tool_output.h"
#include "support/MSimpleIO.h"
#include "text/CTextUtils.h"
#include "text/MSimpleCrypto.h"
#include "text/shorthand.h"
#include "text/wordlist_format.h"

namespace jeerbox {
namespace {

constexpr size_t kExamples = 3;

// Findings of one kind on a key's lines, with a few of the lines as examples.
class LineFindings {
 public:
  void Add(const std::string& what, std::string_view line) {
    Finding& finding = mFindings[what];
    if (finding.examples.size() < kExamples) finding.examples.push_back(EscapeBytes(line));
    ++finding.count;
  }
  void AppendTo(std::vector<std::string>* problems) const {
    for (const auto& [what, finding] : mFindings) {
      std::string text = Plural(finding.count, "line") + " " + what + ":";
      for (const std::string& example : finding.examples) text += " \"" + example + "\"";
      if (finding.count > finding.examples.size()) text += " ...";
      problems->push_back(text);
    }
  }

 private:
  struct Finding {
    size_t count = 0;
    std::vector<std::string> examples;
  };
  std::map<std::string, Finding> mFindings;
};

const std::set<std::string>& KnownTokens() {
  static const std::set<std::string> tokens = [] {
    std::set<std::string> all(std::begin(kGameTokens), std::end(kGameTokens));
    for (const ShorthandToken& shorthand : kShorthandTokens) all.insert(shorthand.token);
    return all;
  }();
  return tokens;
}

// Every "<Word>" of the text, letters only between the angle brackets.
std::vector<std::string> Tokens(const std::string& text) {
  std::vector<std::string> tokens;
  for (size_t open = text.find('<'); open != std::string::npos; open = text.find('<', open + 1)) {
    size_t end = open + 1;
    while (end < text.size() && std::isalpha(static_cast<unsigned char>(text[end]))) ++end;
    if (end > open + 1 && end < text.size() && text[end] == '>')
      tokens.push_back(text.substr(open, end - open + 1));
  }
  return tokens;
}

// The first way the text's brace groups go wrong, or "".
std::string BraceProblem(const std::string& text) {
  bool open = false;
  size_t start = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '{') {
      if (open) return "with a \"{\" inside a brace group";
      open = true;
      start = i;
    } else if (text[i] == '}') {
      if (!open) return "with a \"}\" that closes no group";
      if (i == start + 1) return "with an empty brace group \"{}\"";
      open = false;
    }
  }
  return open ? "with a \"{\" that is never closed" : "";
}

// How many texts contain none of the others: the most the composer can
// put side by side without one turning up inside another.
int SideBySide(const std::set<std::string>& texts) {
  int count = 0;
  for (const std::string& text : texts) {
    bool holdsAnother = false;
    for (const std::string& other : texts)
      if (&other != &text && text.find(other) != std::string::npos) holdsAnother = true;
    if (!holdsAnother) ++count;
  }
  return count;
}

// A data line right in front of a head keeps the CR of its line end: its
// stored form ends in CR and the LF follows it in the file. The line points
// into the file bytes the generator holds, which end in a NUL, so the byte
// behind it can always be read.
bool CarriesLineEndCr(std::string_view stored) {
  return !stored.empty() && stored.back() == '\r' && stored.data()[stored.size()] == '\n';
}

}  // namespace

void CheckLines(const LineList& lines, KeyReport* report, TokenGraph* reaches) {
  LineFindings findings;
  std::set<std::string> texts;
  for (std::string_view stored : lines) {
    const std::string text = SimpleCrypt(stored);
    texts.insert(text);
    if (CarriesLineEndCr(stored))
      findings.Add("with a trailing CR (a data line right in front of a head)", text);
    if (Trim(text).empty()) findings.Add("reading as nothing", text);
    for (const std::string& token : Tokens(text)) {
      if (!KnownTokens().count(token)) findings.Add("with a token that names no key (" + token + ")", text);
      for (const ShorthandToken& shorthand : kShorthandTokens)
        if (token == shorthand.token) (*reaches)[report->key].insert(shorthand.key);
    }
    const std::string brace = BraceProblem(text);
    if (!brace.empty()) findings.Add(brace, text);
  }
  report->lines = static_cast<int>(lines.size());
  report->distinct = static_cast<int>(texts.size());
  findings.AppendTo(&report->problems);
  const auto program = std::find_if(std::begin(kProgramKeys), std::end(kProgramKeys),
                                    [&](const ProgramKey& key) { return key.key == report->key; });
  if (program == std::end(kProgramKeys)) {
    report->problems.emplace_back("the program never asks for this key");
  } else if (!lines.empty() && program->minimum > 1 && SideBySide(texts) < program->minimum) {
    report->problems.push_back("only " + std::to_string(SideBySide(texts)) +
                               " texts that don't contain one another; the composer wants " +
                               std::to_string(program->minimum));
  }
}

std::vector<std::string> CycleThrough(const std::string& key, const TokenGraph& reaches) {
  std::map<std::string, std::string> parent;
  std::vector<std::string> queue = {key};
  for (size_t i = 0; i < queue.size(); ++i) {
    const auto edges = reaches.find(queue[i]);
    if (edges == reaches.end()) continue;
    for (const std::string& next : edges->second) {
      if (next == key) {
        std::vector<std::string> path = {key};
        for (std::string at = queue[i]; at != key; at = parent[at]) path.insert(path.begin() + 1, at);
        path.push_back(key);
        return path;
      }
      if (parent.emplace(next, queue[i]).second) queue.push_back(next);
    }
  }
  return {};
}

}  // namespace jeerbox
