#pragma once

#include <span>
#include <string>

namespace dbmender {

/// What the window program hands over on the command line.
struct MenderLine {
    /// Whether to ask that the other programs be shut down; the caller may have done so.
    bool warns = true;
    /// The program to start afterwards; empty when nobody asked for one.
    std::string appStart;
    /// The registered name of the database.
    std::string dbName;
};

/// Reads the switches "/nowarning", "/appstart=PROGRAM" and "/altdb=NAME", a word each; their names
/// are compared without regard to case. Others are skipped. A database's name is taken in lower
/// case, as the window program takes it.
MenderLine ReadMenderLine(std::span<const char* const> words);

} // namespace dbmender
