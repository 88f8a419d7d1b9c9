#include "text/LineList.h"

#include <algorithm>

#include "text/wordlist_format.h"

namespace jeerbox {

// The hot loop of a sentence: every section of the family passes here once
// per generator.
size_t LineList::CountDataLines(std::string_view text, std::vector<Checkpoint>* checkpoints) {
  size_t count = 0;
  ForEachCrLfPiece(text, [&](std::string_view piece) {
    if (!IsDataPiece(piece)) return true;
    const auto offset = static_cast<size_t>(piece.data() - text.data());
    if (count % kCheckpointLines == 0 || offset - checkpoints->back().offset > kCheckpointBytes)
      checkpoints->push_back({static_cast<uint32_t>(offset), static_cast<uint32_t>(count)});
    ++count;
    return true;
  });
  return count;
}

void LineList::AppendSection(std::string_view sectionText) {
  if (sectionText.empty() || mNothing) return;
  Segment segment;
  segment.text = sectionText;
  segment.first = mCount;
  const size_t count = CountDataLines(sectionText, &segment.checkpoints);
  if (count == 0) return;
  mCount += count;
  mSegments.push_back(std::move(segment));
}

void LineList::MarkNothingIfEmpty() {
  if (mCount != 0) return;
  mNothing = true;
  mCount = 1;
}

std::string_view LineList::operator[](size_t index) const {
  if (mNothing || index >= mCount) return {};
  size_t s = mSegments.size() - 1;
  while (mSegments[s].first > index) --s;
  const Segment& segment = mSegments[s];
  const size_t local = index - segment.first;
  const Checkpoint& point = *std::prev(
      std::upper_bound(segment.checkpoints.begin(), segment.checkpoints.end(), local,
                       [](size_t line, const Checkpoint& checkpoint) { return line < checkpoint.before; }));
  size_t skip = local - point.before;
  std::string_view found;
  ForEachCrLfPiece(segment.text.substr(point.offset), [&](std::string_view piece) {
    if (!IsDataPiece(piece) || skip-- != 0) return true;
    found = piece;
    return false;
  });
  return found;
}

}  // namespace jeerbox
