// A key's data lines, still scrambled, over the sections of its family.
// Lines are counted when a section is added and found again by index on
// demand, from checkpoints every few lines: a pick needs one line of
// thousands, and building every view would cost more than the pick.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <vector>

namespace jeerbox {

class LineList {
 public:
  // Views point into the section texts, which must outlive the list.
  void AppendSection(std::string_view sectionText);
  // The same for the section whose text begins `rest` and runs up to the CR
  // of the first CR LF "[" in it, or to its end.
  void AppendSectionOf(std::string_view rest);
  // Ends an empty list with the one empty line that stands for "nothing".
  void MarkNothingIfEmpty();

  size_t size() const { return mCount; }
  bool empty() const { return mCount == 0; }
  std::string_view operator[](size_t index) const;

  class const_iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using pointer = const std::string_view*;
    using reference = std::string_view;

    const_iterator(const LineList* list, size_t index) : mList(list), mIndex(index) {}
    std::string_view operator*() const { return (*mList)[mIndex]; }
    const_iterator& operator++() {
      ++mIndex;
      return *this;
    }
    bool operator==(const const_iterator& other) const { return mIndex == other.mIndex; }
    bool operator!=(const const_iterator& other) const { return mIndex != other.mIndex; }

   private:
    const LineList* mList;
    size_t mIndex;
  };
  const_iterator begin() const { return {this, 0}; }
  const_iterator end() const { return {this, mCount}; }

 private:
  // A place to start looking for a line: the offset of data line number
  // `before` of the section; one every kCheckpointLines lines, and one at
  // each line further than kCheckpointBytes behind the last, so that no
  // pick walks far whatever stands between the lines.
  static constexpr size_t kCheckpointLines = 16;
  static constexpr size_t kCheckpointBytes = 4096;
  struct Checkpoint {
    uint32_t offset;
    uint32_t before;
  };
  struct Segment {
    std::string_view text;
    size_t first = 0;        // list index of its first data line
    size_t checkpoints = 0;  // index of its first checkpoint in mCheckpoints
  };

  void Append(std::string_view text, bool toNextHead);

  std::vector<Segment> mSegments;
  std::vector<Checkpoint> mCheckpoints;  // of all segments, in order
  size_t mCount = 0;
  bool mNothing = false;
};

}  // namespace jeerbox
