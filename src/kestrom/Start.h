#pragma once

#include <functional>

#include "shell/CommandLine.h"

namespace kestrom {

/// Thrown to end the program before its event loop.
struct ProcessEnd {
    int code = 0;
};

/// Finds the database: the one on the command line, or the registered one. If it is missing or too
/// old, starts the repair tool, unless `isEnding` says that the program was asked to end in the
/// meantime, and throws ProcessEnd.
void FindBooks(const shell::CommandLine& line, const std::function<bool()>& isEnding);

/// Copies the program's report files and letter templates to where the user may change them.
void InstallFiles();

/// Processes window messages while the splash must stay visible.
void LetSplashBeSeen();

} // namespace kestrom
