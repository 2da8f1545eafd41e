#include "core/AppPath.h"

#include <unistd.h>

#include "core/Globals.h"
#include "platform/system/Paths.h"

namespace core {

std::string ChooseAppPath(const std::filesystem::path& executableDirectory,
                          const std::filesystem::path& dataHome) {
    if (access(executableDirectory.c_str(), W_OK) == 0) return executableDirectory.string();
    const std::filesystem::path ours = dataHome / "Vestrel";
    std::error_code ignored;
    std::filesystem::create_directories(ours, ignored);
    return ours.string();
}

std::filesystem::path SiblingProgram(std::string_view name) {
    std::filesystem::path own = App().AppPath + std::string(name);
    if (platform::FileExists(own.string())) return own;
    return platform::ExecutablePath().parent_path() / name;
}

} // namespace core
