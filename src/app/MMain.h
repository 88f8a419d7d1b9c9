// The program's driver: the start in Main and the orderly end in
// ShutdownApp. The process-wide values live in support/globals.h
// (gAppPath, gAllowMarkedText) and sound/FDMC.h (gFDMC); Main sets them.
#pragma once

#include <string>

namespace jeerbox {

// Starts the program on the platform in Services(). Returns with the main
// window up, or with the process ended (Services().process->Ended()) when a
// previous instance runs.
void Main();

// Shuts audio down, unloads every form, the main form last, and ends the
// process. Each step runs even when the one before it failed.
void ShutdownApp();

// The message a second copy shows.
std::string PreviousInstanceText();

}  // namespace jeerbox
