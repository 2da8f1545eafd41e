#pragma once

#include "shell/CommandLine.h"

namespace kestrom {

/// Thrown to leave the program before its event loop.
struct ProcessEnd {
    int code = 0;
};

/// Finds the database: that of the command line, or the registered one. One that is missing or too
/// old is handed over to the mender, and ProcessEnd thrown.
void FindBooks(const shell::CommandLine& line);

/// Lets window messages run until the splash has been seen.
void LetSplashBeSeen();

} // namespace kestrom
