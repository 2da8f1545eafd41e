#pragma once

#include <filesystem>
#include <string_view>

#include "platform/database/Connection.h"

namespace store {

inline constexpr std::string_view kDatabaseFile = "Vestrel.mdb";
inline constexpr std::string_view kVersionFile = "Version";
inline constexpr int kDatabaseVersion = 9;

/// Makes an empty database in `directory`, which is made if it is missing: all tables, the
/// categories of transactions, and the file with its version. Everything it makes is private to the
/// user. The settings' row is left to the program's start.
///
/// An Error when something named as the database is there already, or when it can't be made; then
/// nothing is left behind, and what was there is as before.
void CreateDatabase(const std::filesystem::path& directory);

/// The same tables and categories in an open, empty database.
void CreateTables(platform::Connection& connection);

} // namespace store
