#pragma once

#include <functional>

#include "shell/CommandLine.h"

namespace kestrom {

/// Thrown to leave the program before its event loop.
struct ProcessEnd {
    int code = 0;
};

/// Finds the database: the one of the command line, or the registered one. If it is missing or too
/// old, starts the repair tool, unless `isEnding` says that the program was told to end meanwhile,
/// and throws ProcessEnd.
void FindBooks(const shell::CommandLine& line, const std::function<bool()>& isEnding);

/// Puts the report files and letter templates that come with the program where the user may change
/// them.
void InstallFiles();

/// Lets window messages run for as long as the splash must be visible.
void LetSplashBeSeen();

} // namespace kestrom
