#include "core/AppPath.h"
#include "core/FindDatabase.h"
#include "core/Globals.h"
#include "core/RegistryKeys.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/Paths.h"

namespace core {

namespace {

constexpr std::string_view kNotice =
    "Database is missing or needs upgrading.\n"
    "\n"
    "The Database Mender will automatically be started to help correct\n"
    "this problem. All other Vestrel programs should be shut down.\n"
    "\n"
    "Press OK to continue.";

constexpr std::string_view kNoMender =
    "Error locating Vestrel Database Mender. Please contact support@vestrel.example for "
    "assistance.";

} // namespace

void StartDatabaseMender(const MenderHandover& handover, MenderGreeting greeting) {
    const bool welcomes = greeting == MenderGreeting::Welcome;
    if (!welcomes) {
        platform::TheDialogs().ShowMessage("Database Notice", kNotice, platform::Icon::Information);
    }

    const std::filesystem::path mender = SiblingProgram("dbmender.exe");
    std::vector<std::string> arguments = {"/nowarning",
                                          "/appstart=" + platform::ExecutablePath().string()};
    if (welcomes) arguments.emplace_back("/welcome");
    if (App().DbName != kDefaultDatabase) arguments.push_back("/altdb=" + App().DbName);

    if (platform::FileExists(mender.string())) {
        handover.start(mender, arguments);
    } else {
        platform::TheDialogs().ShowMessage("Error", kNoMender, platform::Icon::Critical);
    }
    handover.endProcess();
}

} // namespace core
