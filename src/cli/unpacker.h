// jeer unpack: scrambled System\ files back into word-list sources.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/wordlist_source.h"

namespace jeerbox {

// The source form of one System\ file. What the source form can't hold is
// reported in `diagnostics`; what it holds differently from the file (lines
// the reader drops or reads with a trailing CR) is told in `notes`.
std::string UnpackFile(const std::string& fileName, std::string_view bytes,
                       std::vector<Diagnostic>* diagnostics, std::vector<Diagnostic>* notes);

// The whole command: every FAMILY.NNN of SYSTEM_DIR to SOURCE_DIR as
// FAMILY.NNN.txt, all or nothing. Returns the exit code.
int RunUnpack(const std::string& systemDir, const std::string& sourceDir, std::ostream& out,
              std::ostream& err);

}  // namespace jeerbox
