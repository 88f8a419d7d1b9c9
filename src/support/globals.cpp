// Storage for the process-wide values.
#include "support/globals.h"

#include "support/random.h"

namespace jeerbox {

std::string gAppPath;
bool gAllowMarkedText = true;

bool Chance(float p) { return NextRandom() < p; }

}  // namespace jeerbox
