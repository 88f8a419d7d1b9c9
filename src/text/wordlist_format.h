// The word-list file format, known here and nowhere else: line ends, heads,
// the marker, which stored lines are data, numbered file names, and the keys
// the program asks for. The reader and jeer's pack, unpack and check use it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace jeerbox {

// ---- Lines. A stored line ends in CR LF; a lone CR or a lone LF ends none.

constexpr std::string_view kLineEnd = "\r\n";

// Calls atLineFeed(position) for each LF of `text`, in order, until it
// returns false; false when it was stopped. A sentence passes every section
// of its word-list family through here, so this is the hot loop.
template <typename AtLineFeed>
bool ForEachLineFeed(std::string_view text, AtLineFeed&& atLineFeed) {
  const char* const data = text.data();
  const size_t size = text.size();
  size_t i = 0;
#if defined(__SSE2__)
  // Sixty-four bytes at a time: lines run to a hundred bytes and more, so
  // most blocks hold no LF and cost one test.
  const __m128i lineFeed = _mm_set1_epi8('\n');
  auto feeds = [&](size_t at) {
    return _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at)), lineFeed);
  };
  auto bits = [](__m128i found, int shift) {
    return static_cast<uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(found))) << shift;
  };
  for (; i + 64 <= size; i += 64) {
    const __m128i a = feeds(i), b = feeds(i + 16), c = feeds(i + 32), d = feeds(i + 48);
    if (_mm_movemask_epi8(_mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d))) == 0) continue;
    for (uint64_t mask = bits(a, 0) | bits(b, 16) | bits(c, 32) | bits(d, 48); mask != 0; mask &= mask - 1)
      if (!atLineFeed(i + static_cast<size_t>(__builtin_ctzll(mask)))) return false;
  }
#endif
  for (; i < size; ++i)
    if (data[i] == '\n' && !atLineFeed(i)) return false;
  return true;
}

// Calls piece(view) for each piece of `text` split at CR LF, in order, the
// last piece (behind the last CR LF) included, as a plain split would.
// piece returns false to stop early.
template <typename Piece>
void ForEachCrLfPiece(std::string_view text, Piece&& piece) {
  const char* const data = text.data();
  size_t start = 0;
  // A LF preceded by a CR ends a piece. CR LF can't overlap itself, so
  // every such LF is one split point.
  const bool whole = ForEachLineFeed(text, [&](size_t lf) {
    if (lf == start || data[lf - 1] != '\r') return true;
    const bool more = piece(std::string_view(data + start, lf - 1 - start));
    start = lf + 1;
    return more;
  });
  if (whole) piece(std::string_view(data + start, text.size() - start));
}

// The section whose text begins `rest` ends with the CR of the first CR LF
// "[" of `rest`, or with `rest`. Calls piece(view) for each piece of the
// section's split at CR LF, the last one ending in that CR, and returns the
// section's length: the search for its end and the split are one sweep.
template <typename Piece>
size_t ForEachSectionPiece(std::string_view rest, Piece&& piece) {
  const char* const data = rest.data();
  size_t start = 0;
  size_t end = rest.size();
  ForEachLineFeed(rest, [&](size_t lf) {
    if (lf == start || data[lf - 1] != '\r') return true;
    if (lf + 1 < rest.size() && data[lf + 1] == '[') {
      end = lf;
      return false;
    }
    piece(std::string_view(data + start, lf - 1 - start));
    start = lf + 1;
    return true;
  });
  piece(std::string_view(data + start, end - start));
  return end;
}

// The lines of a stored file: its pieces, without the empty one behind a
// final CR LF.
std::vector<std::string_view> SplitCrLf(std::string_view bytes);

// ---- Heads. "[", the scrambled key, "]" on a line of their own.

bool IsHeadLine(std::string_view line);
// The scrambled key between the brackets of a head line.
std::string_view HeadKey(std::string_view headLine);
// The stored head of a key.
std::string HeadLine(std::string_view key);
// A line that begins with "[" ends the section above it, head or not.
inline bool EndsSection(std::string_view line) { return !line.empty() && line.front() == '['; }

// ---- The marker. A file that holds its scrambled form anywhere is marked.

const std::string& StoredMarker();
bool HoldsMarker(std::string_view fileBytes);
// The comment line that carries the marker in a file pack writes.
const std::string& MarkerCommentLine();

// ---- Data lines. A piece of a section's split is a data line unless the
// reader drops it, for one of these reasons; the test is on the stored form.

enum class DroppedPiece { kNone, kEmpty, kComment, kLoneCr, kBlanks };

// Most pieces are settled by their first byte.
inline DroppedPiece WhyDropped(std::string_view piece) {
  if (piece.empty()) return DroppedPiece::kEmpty;
  switch (piece.front()) {
    case ';':
      return DroppedPiece::kComment;
    case '\r':
      return piece.size() == 1 ? DroppedPiece::kLoneCr : DroppedPiece::kNone;
    case ' ':
      return piece.find_first_not_of(' ') == std::string_view::npos ? DroppedPiece::kBlanks
                                                                    : DroppedPiece::kNone;
    default:
      return DroppedPiece::kNone;
  }
}

inline bool IsDataPiece(std::string_view piece) { return WhyDropped(piece) == DroppedPiece::kNone; }

// The most data lines a key may hold over its family, and the most pieces
// one section may split into, for a reader that counts in 16 bits.
constexpr int kMaxLinesPerKey = 32767;

// What a line of a stored file is to a tool that walks the file line by
// line. The marker alone on a line is the marker only in front of the first
// head; in a section it is a data line. Lines the reader drops keep their
// reason (kEmpty ... kBlanks); kStrayBracket begins with "[" but is no head.
enum class StoredLine { kHead, kMarker, kEmpty, kComment, kLoneCr, kBlanks, kStrayBracket, kData };
StoredLine ClassifyStoredLine(std::string_view line, bool inSection);

// ---- Numbered files. Key "Misc-Jeerbox-Noun" lives in Misc.001, Misc.002...

constexpr int kMaxFileNumber = 999;

// The part of the key in front of its first hyphen; a key without a hyphen
// is a family of its own name.
std::string KeyFamily(std::string_view key);
// "Misc", 1 -> "Misc.001": the last three digits of the number.
std::string NumberedFileName(std::string_view family, int number);
// "Misc.001" -> "Misc", 1. False for any other name, number 000 included.
bool ParseNumberedFileName(std::string_view name, std::string* family, int* number);

// ---- The keys the program asks for: seven for the composer, five behind
// the tokens that fetch a further line.

inline constexpr char kWhoSaysKey[] = "Misc-Jeerbox-WhoSays";
inline constexpr char kPersonKey[] = "Misc-Jeerbox-Person";
inline constexpr char kHowBigKey[] = "Misc-Jeerbox-HowBig";
inline constexpr char kAdjectiveKey[] = "Misc-Jeerbox-Adjective";
inline constexpr char kNounKey[] = "Misc-Jeerbox-Noun";
inline constexpr char kAndMoreKey[] = "Misc-Jeerbox-AndMore";
inline constexpr char kSomeoneKey[] = "Misc-Jeerbox-Someone";
inline constexpr char kInsultKey[] = "General-Insult";
inline constexpr char kCurseKey[] = "General-Curse";
inline constexpr char kAutoDealerKey[] = "General-AutoDealer";
inline constexpr char kExclaimKey[] = "General-Exclaim";
inline constexpr char kCharacterKey[] = "General-Character";

// The most adjectives the composer puts in one sentence, none inside another.
constexpr int kMaxAdjectives = 3;

// A key with the distinct texts it must offer at least.
struct ProgramKey {
  const char* key;
  int minimum;
};
inline constexpr ProgramKey kProgramKeys[] = {
    {kWhoSaysKey, 1}, {kPersonKey, 1},     {kHowBigKey, 1},  {kAdjectiveKey, kMaxAdjectives},
    {kNounKey, 1},    {kAndMoreKey, 1},    {kSomeoneKey, 1}, {kInsultKey, 1},
    {kCurseKey, 1},   {kAutoDealerKey, 1}, {kExclaimKey, 1}, {kCharacterKey, 1},
};

}  // namespace jeerbox
