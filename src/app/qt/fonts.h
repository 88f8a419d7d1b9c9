// The dialog's typeface. Tahoma where the system has it; otherwise the
// Tahoma-metric font of Debian's fonts-wine when installed, else the
// toolkit's closest sans.
#pragma once

#include <QString>

namespace jeerbox {

// Makes "Tahoma" available to the program if a file for it is found.
// Returns the family that a request for Tahoma will get.
QString LoadDialogFont();

}  // namespace jeerbox
