#pragma once

#include <optional>
#include <span>
#include <string>

#include "platform/values/Date.h"

namespace shell {

/// The window program's command line.
struct CommandLine {
    /// The database directory to open instead of a registered one.
    std::optional<std::string> data;
    /// The date to use as today.
    std::optional<platform::Date> today;
    /// Whether the books are opened to be read only.
    bool readOnly = false;
    /// Everything else as it was written, the "/name=value" switches among it.
    std::string rest;
    /// What is wrong with it; empty if it is valid.
    std::string fault;
};

/// Reads the arguments after the program's name: "--data DIR", "--today mm/dd/yyyy",
/// "--read-only", and the rest.
CommandLine ReadCommandLine(std::span<const char* const> words);

} // namespace shell
