#pragma once

#include <optional>
#include <span>
#include <string>

#include "platform/values/Date.h"

namespace shell {

/// What stands on the window program's command line.
struct CommandLine {
    /// The database directory to open instead of a registered one.
    std::optional<std::string> data;
    /// The day to take for today.
    std::optional<platform::Date> today;
    /// Whether the books are opened to be read only.
    bool readOnly = false;
    /// All else as it was written, which is where the "/name=value" switches stand.
    std::string rest;
    /// What is wrong with it; empty when it can be used.
    std::string fault;
};

/// Reads the words behind the program's name: "--data DIR", "--today mm/dd/yyyy",
/// "--read-only", and the rest.
CommandLine ReadCommandLine(std::span<const char* const> words);

} // namespace shell
