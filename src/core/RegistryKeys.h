#pragma once

#include <string_view>

namespace core {

// Keys of the registry below which more than one routine reads or writes.

/// Database directories, by the name that the user gave them; kDefaultDatabase is the usual one.
inline constexpr std::string_view kDatabasesKey = R"(SOFTWARE\Vestrel\Global\Databases)";
inline constexpr std::string_view kDefaultDatabase = "Default";

/// Where the database file was before databases had names; read once, never written.
inline constexpr std::string_view kOldSettingsKey = R"(USER\Vestrel\Global)";
inline constexpr std::string_view kOldDatabaseFile = "DBPath";

inline constexpr std::string_view kPreferencesKey = R"(SOFTWARE\Vestrel\Global\Preferences)";
inline constexpr std::string_view kPickListsKey = R"(SOFTWARE\Vestrel\Global\PickLists)";
inline constexpr std::string_view kFormPositionKey = R"(SOFTWARE\Vestrel\FormPosition)";
inline constexpr std::string_view kFormStateKey = R"(SOFTWARE\Vestrel\FormState)";

} // namespace core
