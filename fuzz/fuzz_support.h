// What every fuzz target shares: an in-memory program directory and a
// reproducible random source, set up once per process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "helpers/memory_file_system.h"

namespace jeerbox::fuzz {

// The in-memory file system every target works on, already in place, with
// gAppPath at "C:\app" and the random source seeded.
MemoryFileSystem& Files();

// Splits the input at a separator line into up to `parts` pieces.
std::vector<std::string> SplitInput(const uint8_t* data, size_t size, size_t parts);

}  // namespace jeerbox::fuzz
