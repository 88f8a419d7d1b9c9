// Where the running program lies: the root of every relative path it builds.
#pragma once

#include <string>

namespace jeerbox {

// The directory of the running executable, symlinks resolved, with no
// trailing separator; "" when the platform can't tell.
std::string ExecutableDirectory();

}  // namespace jeerbox
