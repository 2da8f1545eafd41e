#include "core/FindDatabase.h"

#include <exception>
#include <fstream>

#include <fmt/core.h>

#include "core/DiagLog.h"
#include "core/Globals.h"
#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "platform/system/Paths.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace core {

namespace {

/// Returns the registered directory of the process's database; empty if there is none.
std::string RegisteredDirectory() {
    const std::string& name = App().DbName;
    std::string directory = GetRegString(kDatabasesKey, name, "");
    if (!directory.empty() || name != kDefaultDatabase) return directory;

    const std::string oldFile = GetRegString(kOldSettingsKey, kOldDatabaseFile, "");
    directory = platform::PathOf(oldFile);
    if (!directory.empty()) SetRegString(kDatabasesKey, name, directory);
    return directory;
}

} // namespace

DatabaseState FindDatabase(std::ostream* diagFile) {
    Globals& app = App();
    app.DbFile.clear();
    app.DbPath = RegisteredDirectory();
    const bool isRegistered = !app.DbPath.empty();

    bool exists = false;
    std::int16_t version = 0;
    if (isRegistered) {
        app.DbFile = platform::AddBackslash(app.DbPath) + "Vestrel.mdb";
        exists = platform::FileExists(app.DbFile);
        version = ReadDbVersion();
    }

    const auto word = [](bool flag) { return flag ? "True" : "False"; };
    WriteDiag(diagFile, fmt::format("{{ }} Registry value exists : {}", word(isRegistered)));
    WriteDiag(diagFile, fmt::format("{{ }} Database path         : {}", app.DbPath));
    WriteDiag(diagFile, fmt::format("{{ }} Database file         : {}", app.DbFile));
    WriteDiag(diagFile, fmt::format("{{ }} DB File exists        : {}", word(exists)));
    WriteDiag(diagFile, fmt::format("{{ }} DB Current Version    : {}", app.DbVersionRequired));
    WriteDiag(diagFile, fmt::format("{{ }} DB Existing Version   : {}", version));

    if (!exists) return DatabaseState::Missing;
    return version >= app.DbVersionRequired ? DatabaseState::Ready : DatabaseState::TooOld;
}

std::int16_t ReadDbVersion() {
    return ReadDbVersion(App().DbPath);
}

std::int16_t ReadDbVersion(std::string_view directory) {
    std::ifstream file(platform::AddBackslash(directory) + "Version");
    std::string word;
    file >> word;
    try {
        return platform::StrToInt16(word);
    } catch (const std::exception&) {
        return 0;
    }
}

void RegisterDatabase(std::string_view name, const std::filesystem::path& directory) {
    const std::string path =
        platform::AddBackslash(std::filesystem::absolute(directory).lexically_normal().string());
    if (!SetRegString(kDatabasesKey, name, path)) {
        throw platform::Error("the registry can't be written");
    }
}

} // namespace core
