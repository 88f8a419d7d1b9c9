// Substring search for the whole-file scans: a key's head and the marker.
#pragma once

#include <cstring>
#include <string_view>
#include <vector>

namespace jeerbox {

// Position of the first occurrence of `needle` in `haystack` from `from`
// on, or npos, in time linear in the haystack whatever it holds
// (Knuth-Morris-Pratt).
inline size_t FindBytesLinear(std::string_view haystack, std::string_view needle, size_t from) {
  std::vector<size_t> fallback(needle.size() + 1, 0);
  for (size_t i = 1, k = 0; i < needle.size(); ++i) {
    while (k > 0 && needle[i] != needle[k]) k = fallback[k];
    if (needle[i] == needle[k]) ++k;
    fallback[i + 1] = k;
  }
  for (size_t i = from, k = 0; i < haystack.size(); ++i) {
    while (k > 0 && haystack[i] != needle[k]) k = fallback[k];
    if (haystack[i] == needle[k] && ++k == needle.size()) return i + 1 - needle.size();
  }
  return std::string_view::npos;
}

// Position of the first occurrence of `needle` in `haystack`, or npos; an
// empty needle is found at 0. Scrambled lower-case text holds few control
// bytes other than its line ends, so the search runs memchr on the needle's
// first such byte (else its first byte) and checks the needle at each hit.
// A file made of that byte would make this slow: when the checks that fail
// come thicker than one in 32 bytes, the search goes on in linear time.
inline size_t FindBytes(std::string_view haystack, std::string_view needle) {
  if (needle.empty()) return 0;
  if (needle.size() > haystack.size()) return std::string_view::npos;
  size_t anchor = 0;
  auto rare = [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\r' && c != '\n'; };
  while (anchor < needle.size() && !rare(needle[anchor])) ++anchor;
  if (anchor == needle.size()) anchor = 0;

  const char* const base = haystack.data();
  const char* from = base + anchor;
  const char* const last = base + (haystack.size() - needle.size()) + anchor;  // last anchor spot
  size_t misses = 0;
  while (from <= last) {
    const void* hit = std::memchr(from, needle[anchor], static_cast<size_t>(last - from) + 1);
    if (hit == nullptr) break;
    const char* start = static_cast<const char*>(hit) - anchor;
    if (std::memcmp(start, needle.data(), needle.size()) == 0) return static_cast<size_t>(start - base);
    from = static_cast<const char*>(hit) + 1;
    if (++misses > 64 && misses > static_cast<size_t>(from - base) / 32)
      return FindBytesLinear(haystack, needle, static_cast<size_t>(start - base) + 1);
  }
  return std::string_view::npos;
}

// Position of the first CR LF "[" (the line end in front of a head), or npos.
inline size_t FindHeadLineEnd(std::string_view text) {
  size_t from = 2;
  while (from < text.size()) {
    const void* hit = std::memchr(text.data() + from, '[', text.size() - from);
    if (hit == nullptr) break;
    const size_t at = static_cast<size_t>(static_cast<const char*>(hit) - text.data());
    if (text[at - 2] == '\r' && text[at - 1] == '\n') return at - 2;
    from = at + 1;
  }
  return std::string_view::npos;
}

}  // namespace jeerbox
