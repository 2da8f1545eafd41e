#include "core/CoreFixture.h"

#include <fstream>

#include "core/Configuration.h"
#include "core/Preferences.h"
#include "platform/registry/Registry.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "store/CreateDatabase.h"
#include "support/Books.h"

namespace tests {

CoreProcess::CoreProcess() {
    platform::SetRegistry(platform::MakeMemoryRegistry());
    platform::SetToday(platform::Date(2024, 5, 17));
    core::Config() = {};
    core::Preferences() = {};
    core::SetAppPath(Folder().string());
    core::Globals& app = core::App();
    app.DbName = "Default";
    app.DbPath.clear();
    app.DbFile.clear();
    app.DiagFile = nullptr;
    app.Expert = app.SwitchDiag = app.SwitchNoDb = app.SwitchUpgradeDb = false;
    app.LoadFile.clear();
    app.AppStart.clear();
}

CoreProcess::~CoreProcess() {
    core::App().Connection.Close();
    core::App().DiagFile = nullptr;
    platform::SetRegistry(nullptr);
    platform::SetToday(std::nullopt);
}

void CoreProcess::MakeFile(std::string_view name, std::string_view contents) {
    std::ofstream(PathTo(name)) << contents;
}

CoreBooks::CoreBooks() {
    store::CreateDatabase(Folder());
    core::App().DbPath = platform::AddBackslash(Folder().string());
    core::App().DbFile = PathTo("Vestrel.mdb");
    core::App().Connection.Open(core::App().DbFile);
}

void CoreBooks::Run(std::string_view sql) {
    core::App().Connection.Execute(sql);
}

std::string CoreBooks::Ask(std::string_view sql) {
    return support::Ask(core::App().Connection, sql, "NULL");
}

} // namespace tests
