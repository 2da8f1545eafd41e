#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

#include "platform/database/Connection.h"

namespace core {

/// The state that the whole process shares, set once by InitGlobals unless said otherwise.
struct Globals {
    /// Directory of the program's files, with a trailing separator.
    std::string AppPath;
    std::string ReportPath;
    std::string SysReportName = "SysReport";
    std::string HelpFile;
    /// Whether the read-only reference tables are beside the program.
    bool HasReferences = false;
    std::int32_t SecurityLevel = 1;
    std::string UserName = "Administrator";
    std::int16_t DbVersionRequired = 9;

    /// Name of the registry value that holds the database directory.
    std::string DbName = "Default";
    /// Database directory and file; empty until FindDatabase.
    std::string DbPath;
    std::string DbFile;
    /// The only session: opened at the start, closed at shut-down.
    platform::Connection Connection;
    /// Why the database could not be opened, in one line for the user; empty if it could.
    std::string OpenFault;

    /// Where diagnostic lines go; null while the log is off.
    std::ostream* DiagFile = nullptr;

    bool Expert = false;
    bool SwitchDiag = false;
    bool SwitchNoDb = false;
    bool SwitchUpgradeDb = false;
    std::string LoadFile;
    std::string AppStart;
};

/// Returns the one instance of this process.
Globals& App();

inline constexpr std::array<std::string_view, 3> TaxClasses = {"Income", "Expenses",
                                                               "Unclassified"};

/// Sets the paths of the program's files to those below `directory`.
void SetAppPath(std::string_view directory);

/// Sets the paths from the program's place, then reads the switches of `commandLine` (the text
/// after the program's name) and makes the directories.
void InitGlobals(std::string_view commandLine);

/// Reads "/name=value" switches; unknown ones are skipped.
void ParseCommandLine(std::string_view commandLine);

/// Makes the program's directories; one that exists or can't be made is skipped.
void MakeDirectories();

} // namespace core
