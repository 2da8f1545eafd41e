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

/// Looks in the registry for the database directory of the process's name and sets the process's
/// database path and file; a newer database than required is ready too. The "Default" one may also
/// be found where the old settings have it, which are then moved over. Each finding goes to
/// `diagFile` unless that is null.
DatabaseState FindDatabase(std::ostream* diagFile);

/// The version in the database directory's file "Version"; 0 when it is missing or holds no number
/// of 16 bits.
std::int16_t ReadDbVersion();
/// The same of any directory.
std::int16_t ReadDbVersion(std::string_view directory);

/// Names a database directory to the programs. An Error when the registry can't be written.
void RegisterDatabase(std::string_view name, const std::filesystem::path& directory);

/// How StartDatabaseMender leaves this process.
struct MenderHandover {
    std::function<bool(const std::filesystem::path& program,
                       const std::vector<std::string>& arguments)>
        start = platform::StartDetached;
    /// Must not return, except under test.
    std::function<void()> endProcess;
};

/// How a user whose database can't be opened is received.
enum class MenderGreeting {
    Notice,  ///< says that the database is missing or too old
    Welcome, ///< for a user who never had one: the sibling program begins with its welcome page
};

/// For a database that is missing or too old: informs the user, starts the sibling program that
/// mends databases (it starts this one again afterwards) and ends this process; says so if there
/// is no such program.
void StartDatabaseMender(const MenderHandover& handover,
                         MenderGreeting greeting = MenderGreeting::Notice);

} // namespace core
