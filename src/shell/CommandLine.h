#pragma once

#include <optional>
#include <span>
#include <string>

#include "platform/system/ProgramHelp.h"
#include "platform/values/Date.h"

namespace shell {

/// The window program's command line.
struct CommandLine {
    /// The database directory to open instead of a registered one.
    std::optional<std::string> data;
    /// The date to use as today.
    std::optional<platform::Date> today;
    /// Whether to open the books read-only.
    bool readOnly = false;
    /// Whether to welcome a user who never had books, instead of saying that they are missing.
    bool welcomes = false;
    /// Everything else, unchanged, including the "/name=value" switches.
    std::string rest;
    /// The error in the command line; empty if it is valid.
    std::string fault;
};

/// Reads the arguments after the program's name: "--data DIR", "--today mm/dd/yyyy",
/// "--read-only", "/welcome", and the rest.
CommandLine ReadCommandLine(std::span<const char* const> words);

/// Describes the window program and its command line.
const platform::ProgramHelp& WindowHelp();

} // namespace shell
