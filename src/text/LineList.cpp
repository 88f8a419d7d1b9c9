#include "text/LineList.h"

#include <algorithm>

#include "text/wordlist_format.h"

namespace jeerbox {

void LineList::AppendSection(std::string_view sectionText) { Append(sectionText, false); }

void LineList::AppendSectionOf(std::string_view rest) { Append(rest, true); }

// Every section of the family passes here once per generator: the lines are
// counted, and a checkpoint noted now and then, in the one sweep that also
// finds where a section ends.
void LineList::Append(std::string_view text, bool toNextHead) {
  if (text.empty() || mNothing) return;
  if (mSegments.empty()) {  // a key has a section in a file or two, a few dozen checkpoints
    mSegments.reserve(4);
    mCheckpoints.reserve(32);
  }
  Segment segment;
  segment.first = mCount;
  segment.checkpoints = mCheckpoints.size();
  size_t count = 0;
  size_t last = 0;  // offset of the last checkpoint
  auto note = [&](std::string_view piece) {
    if (!IsDataPiece(piece)) return true;
    const auto offset = static_cast<size_t>(piece.data() - text.data());
    if (count % kCheckpointLines == 0 || offset - last > kCheckpointBytes) {
      mCheckpoints.push_back({static_cast<uint32_t>(offset), static_cast<uint32_t>(count)});
      last = offset;
    }
    ++count;
    return true;
  };
  segment.text = toNextHead ? text.substr(0, ForEachSectionPiece(text, note)) : text;
  if (!toNextHead) ForEachCrLfPiece(text, note);
  if (count == 0) return;
  mCount += count;
  mSegments.push_back(segment);
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
  const auto begin = mCheckpoints.begin() + static_cast<std::ptrdiff_t>(segment.checkpoints);
  const auto end = s + 1 < mSegments.size()
                       ? mCheckpoints.begin() + static_cast<std::ptrdiff_t>(mSegments[s + 1].checkpoints)
                       : mCheckpoints.end();
  const Checkpoint& point = *std::prev(std::upper_bound(
      begin, end, local, [](size_t line, const Checkpoint& checkpoint) { return line < checkpoint.before; }));
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
