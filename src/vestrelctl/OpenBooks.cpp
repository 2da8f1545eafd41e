#include "vestrelctl/OpenBooks.h"

#include <fmt/core.h>

#include "core/FindDatabase.h"
#include "core/Globals.h"
#include "core/Startup.h"
#include "platform/system/Paths.h"

namespace vestrelctl {

namespace {

void FindGivenDatabase(const std::filesystem::path& folder) {
    core::App().DbPath = platform::AddBackslash(folder.string());
    core::App().DbFile = core::App().DbPath + "Vestrel.mdb";
}

platform::OpenMode ModeOf(const Options& options, Purpose purpose) {
    using platform::OpenMode;
    if (purpose == Purpose::Read) {
        return options.readOnly ? OpenMode::ReadOnly : OpenMode::ReadWriteIfAllowed;
    }
    if (options.readOnly) throw platform::Error("--read-only: this command writes to the books");
    return OpenMode::ReadWrite;
}

} // namespace

void OpenDatabase(const Options& options, Purpose purpose) {
    const platform::OpenMode mode = ModeOf(options, purpose);
    if (options.data) {
        FindGivenDatabase(*options.data);
    } else {
        core::FindDatabase(nullptr);
        if (core::App().DbPath.empty()) {
            throw platform::Error("no database is registered; name its directory with --data");
        }
    }
    const core::Globals& app = core::App();
    if (!platform::FileExists(app.DbFile)) {
        throw platform::Error(fmt::format("there is no database {}", app.DbFile));
    }
    const int version = core::ReadDbVersion();
    if (version < app.DbVersionRequired) {
        throw platform::Error(fmt::format("{} has version {}; version {} is needed", app.DbFile,
                                          version, app.DbVersionRequired));
    }
    core::App().Connection.Open(app.DbFile, mode);
}

void OpenBooks(const Options& options, Purpose purpose) {
    OpenDatabase(options, purpose);
    core::LoadBooks(purpose == Purpose::Read ? core::BooksUse::Read : core::BooksUse::Keep);
}

} // namespace vestrelctl
