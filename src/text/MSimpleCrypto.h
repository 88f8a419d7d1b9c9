// The scrambler of the text files: a repeating XOR, its own inverse.
#pragma once

#include <string>
#include <string_view>

namespace jeerbox {

// The key every text file is scrambled with.
constexpr std::string_view kTextFileKey = "QUORVEMAL";

// Byte i of the text XOR byte (i mod key length) of the key. Each call
// starts again at the first key byte. An empty key returns the text as is.
std::string SimpleCrypt(std::string_view text, std::string_view key = kTextFileKey);

}  // namespace jeerbox
