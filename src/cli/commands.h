// The subcommands of jeer, each group in a file of its own. A subcommand's
// callback returns the process exit code through `exitCode`.
#pragma once

#include <CLI/App.hpp>

namespace jeerbox {

// Exit codes: 0 done, 1 the work found a problem, 2 the call was wrong.
constexpr int kExitProblem = 1;
constexpr int kExitUsage = 2;

// say, pick, lines: sentences and lines as the program composes them.
void AddComposeCommands(CLI::App& app, int* exitCode);

// pack, unpack, check: the word-list files.
void AddPackCommands(CLI::App& app, int* exitCode);

// The program directory jeer works on: --root, or where jeer itself lies.
std::string ResolveRoot(const std::string& root);

}  // namespace jeerbox
