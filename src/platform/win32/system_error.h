// Windows error codes as text for people.
#pragma once

#include <string>

namespace jeerbox {

// The system's message for `code` ("Access denied"), without the closing
// full stop and line end; the code in decimal when the system has none.
std::string SystemErrorText(unsigned long code);

}  // namespace jeerbox
