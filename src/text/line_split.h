// Splitting text at every CR LF, fast: a sentence splits every section of
// its word-list family, thousands of short lines, so this is the hot loop.
#pragma once

#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace jeerbox {

// Calls piece(view) for each piece of `text` split at CR LF, in order, the
// last piece (behind the last CR LF) included, as a plain split would.
// piece returns false to stop early.
template <typename Piece>
void ForEachCrLfPiece(std::string_view text, Piece&& piece) {
  const char* const data = text.data();
  const size_t size = text.size();
  size_t start = 0;
  size_t i = 0;
  // A LF preceded by a CR ends a piece. CR LF can't overlap itself, so
  // every such LF is one split point.
  auto atLineFeed = [&](size_t lf) {
    if (lf == start || data[lf - 1] != '\r') return true;
    const bool more = piece(std::string_view(data + start, lf - 1 - start));
    start = lf + 1;
    return more;
  };
#if defined(__SSE2__)
  const __m128i lineFeed = _mm_set1_epi8('\n');
  for (; i + 16 <= size; i += 16) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + i));
    auto mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, lineFeed)));
    for (; mask != 0; mask &= mask - 1)
      if (!atLineFeed(i + static_cast<size_t>(__builtin_ctz(mask)))) return;
  }
#endif
  for (; i < size; ++i)
    if (data[i] == '\n' && !atLineFeed(i)) return;
  piece(std::string_view(data + start, size - start));
}

}  // namespace jeerbox
