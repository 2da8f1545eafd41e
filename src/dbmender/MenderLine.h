#pragma once

#include <span>
#include <string>

#include "platform/system/ProgramHelp.h"

namespace dbmender {

/// The repair tool's command line.
struct MenderLine {
    /// Whether to ask the user to close the other programs; the caller may have done so.
    bool warns = true;
    /// Whether to begin with the welcome page if there are no books yet.
    bool welcomes = false;
    /// The program to start afterwards; may be empty.
    std::string appStart;
    /// The registered name of the database.
    std::string dbName;
};

/// Reads the switches "/nowarning", "/welcome", "/appstart=PROGRAM" and "/altdb=NAME", an argument
/// each, whose names are compared without regard to case. Others are ignored. A database's name is
/// converted to lower case, as in the window program.
MenderLine ReadMenderLine(std::span<const char* const> words);

/// Describes the repair tool and its command line.
const platform::ProgramHelp& MenderHelp();

} // namespace dbmender
