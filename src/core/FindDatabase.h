#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/Process.h"

namespace core {

enum class DatabaseState { Ready = 0, Missing = 1, TooOld = 2 };

/// Looks up the process's database name in the registry, and sets the process's database path and
/// file; a database that is newer than required is ready too. The "Default" database is also looked
/// for in the old settings, which are then moved over. Each finding is written to `diagFile` unless
/// that is null.
DatabaseState FindDatabase(std::ostream* diagFile);

/// Returns the version in the database directory's file "Version"; 0 if it is missing or doesn't
/// hold a number of 16 bits.
std::int16_t ReadDbVersion();
/// Returns the same for any directory.
std::int16_t ReadDbVersion(std::string_view directory);

/// Registers a database directory under a name. Throws an Error if the registry can't be written.
void RegisterDatabase(std::string_view name, const std::filesystem::path& directory);

/// How StartDatabaseMender starts the repair tool and ends this process.
struct MenderHandover {
    std::function<bool(const std::filesystem::path& program,
                       const std::vector<std::string>& arguments)>
        start = platform::StartDetached;
    /// Must not return, except under test.
    std::function<void()> endProcess;
};

/// How the user is received if the database can't be opened.
enum class MenderGreeting {
    Notice,  ///< says that the database is missing or too old
    Welcome, ///< for a user who never had one: the repair tool begins with its welcome page
};

/// For a database that is missing or too old: informs the user, starts the repair tool (which
/// starts this program again afterwards) and ends this process; informs the user if there is no
/// repair tool.
void StartDatabaseMender(const MenderHandover& handover,
                         MenderGreeting greeting = MenderGreeting::Notice);

} // namespace core
