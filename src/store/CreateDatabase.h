#pragma once

#include <filesystem>
#include <string_view>

#include "platform/database/Connection.h"
#include "store/NewFile.h"

namespace store {

inline constexpr std::string_view kDatabaseFile = "Vestrel.mdb";
inline constexpr std::string_view kVersionFile = "Version";
inline constexpr int kDatabaseVersion = 9;

/// An empty database in the making: all tables and the categories of transactions, in a draft
/// beside the final file that is private to the user. Until it is published nothing has the final
/// name, whatever happens to the process; what was made is removed again if it isn't published. The
/// settings' row is left to the program's start.
class NewDatabase {
  public:
    /// Makes the draft, and `directory` if it is missing. Throws an Error if anything named as the
    /// database already exists, or the draft can't be made; what was there is as before.
    explicit NewDatabase(const std::filesystem::path& directory);

    const std::filesystem::path& Draft() const { return file_.Draft(); }
    /// Writes the file with the version and gives the draft, which must be closed, its name. Throws
    /// an Error on failure.
    void Publish();

  private:
    std::filesystem::path directory_;
    NewFolder folder_;
    NewFile file_;
};

/// Makes an empty database in `directory`: a NewDatabase, published.
void CreateDatabase(const std::filesystem::path& directory);

/// Makes the same tables and categories in an open, empty database.
void CreateTables(platform::Connection& connection);

/// Adds the tables that books of an earlier version lack; their rows stay as they are. Does nothing
/// if the books are only read.
void AddMissingTables(platform::Connection& connection);

} // namespace store
