// Arbitrary word-list sources through jeer pack: a source is either refused
// with diagnostics or packed into files that unpack and pack back the same.
#include <cstdlib>

#include "cli/packer.h"
#include "cli/unpacker.h"
#include "fuzz_support.h"

using namespace jeerbox;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string source(reinterpret_cast<const char*>(data), size);
  const PackResult packed = PackSources({{"Misc.001.txt", source}});
  if (!packed.diagnostics.empty()) {
    if (!packed.files.empty()) std::abort();  // refused means nothing written
    return 0;
  }
  if (packed.files.size() != 1) std::abort();

  std::vector<Diagnostic> diagnostics, notes;
  const std::string unpacked = UnpackFile(packed.files[0].name, packed.files[0].bytes, &diagnostics, &notes);
  if (!diagnostics.empty()) std::abort();  // what pack wrote, unpack must read
  const PackResult again = PackSources({{"Misc.001.txt", unpacked}});
  if (!again.diagnostics.empty() || again.files.size() != 1) std::abort();
  if (again.files[0].bytes != packed.files[0].bytes) std::abort();
  return 0;
}
