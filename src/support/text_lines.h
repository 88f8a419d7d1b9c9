// Lines of the plain text files people edit, word-list sources and settings
// files: each ends in LF or CR LF.
#pragma once

#include <string_view>
#include <vector>

namespace jeerbox {

// The lines of `text` without their line ends. A CR right in front of a LF
// belongs to the line end; any other CR stays in its line. The last line
// needn't end; there is no empty line behind a final LF, and "" has none.
std::vector<std::string_view> SplitLfLines(std::string_view text);

}  // namespace jeerbox
