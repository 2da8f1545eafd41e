#include "core/Globals.h"

#include <utility>

#include "core/AppPath.h"
#include "core/RegistryKeys.h"
#include "core/ThreadApp.h"
#include "platform/system/Paths.h"
#include "platform/values/Text.h"

namespace core {

namespace {

Globals*& AppOfThread() {
    thread_local Globals* app = nullptr;
    return app;
}

struct Switch {
    std::string_view name;
    void (*apply)(Globals& app, std::string_view value);
};

// Switches that nothing reads are accepted because the sibling programs share the command line.
constexpr std::array<Switch, 8> kSwitches = {{
    {"nodb", [](Globals& app, std::string_view) { app.SwitchNoDb = true; }},
    {"diag", [](Globals& app, std::string_view) { app.SwitchDiag = true; }},
    {"upgradedb", [](Globals& app, std::string_view) { app.SwitchUpgradeDb = true; }},
    {"expert", [](Globals& app, std::string_view) { app.Expert = true; }},
    {"loadfile", [](Globals& app, std::string_view value) { app.LoadFile = value; }},
    {"altdb", [](Globals& app, std::string_view value) { app.DbName = value; }},
    {"appstart", [](Globals& app, std::string_view value) { app.AppStart = value; }},
    {"nowarning", [](Globals&, std::string_view) {}},
}};

void ApplySwitch(std::string_view text) {
    const auto equals = text.find('=');
    const auto name = platform::Trim(text.substr(0, equals));
    std::string_view value;
    if (equals != std::string_view::npos) value = platform::Trim(text.substr(equals + 1));
    for (const Switch& known : kSwitches) {
        if (known.name == name) known.apply(App(), value);
    }
}

} // namespace

Globals& App() {
    static Globals app;
    Globals* const own = AppOfThread();
    return own != nullptr ? *own : app;
}

Globals* SetAppOfThread(Globals* app) {
    return std::exchange(AppOfThread(), app);
}

void SetAppPath(std::string_view directory) {
    Globals& app = App();
    app.AppPath = platform::AddBackslash(directory);
    app.ReportPath = platform::AddBackslash(app.AppPath + "Reports");
    app.HelpFile = app.AppPath + "Vestrel.chm";
    app.HasReferences = platform::FileExists(app.AppPath + "References.mdb");
}

void InitGlobals(std::string_view commandLine) {
    FindAppPath();
    ParseCommandLine(commandLine);
    MakeDirectories();
}

void ParseCommandLine(std::string_view commandLine) {
    const std::string line = platform::ToLower(platform::Trim(commandLine));
    std::string_view rest = line;
    for (auto slash = rest.find('/'); slash != std::string_view::npos; slash = rest.find('/')) {
        rest.remove_prefix(slash + 1);
        ApplySwitch(rest.substr(0, rest.find('/')));
    }
}

void MakeDirectories() {
    for (const std::string_view name : {"db", "Backup", "Docs", "Files"}) {
        std::error_code ignored;
        std::filesystem::create_directories(std::filesystem::path(App().AppPath) / name, ignored);
    }
}

} // namespace core
