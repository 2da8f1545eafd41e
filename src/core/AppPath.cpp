#include "core/AppPath.h"

#include <unistd.h>

#include "core/Globals.h"
#include "platform/system/Paths.h"

namespace core {

namespace fs = std::filesystem;

namespace {

fs::path BesideExecutable(const fs::path& executableDirectory) {
    return executableDirectory / "share";
}

bool IsFolder(const fs::path& path) {
    std::error_code failure;
    return fs::is_directory(path, failure);
}

} // namespace

std::string ChooseAppPath(const fs::path& executableDirectory, const fs::path& dataHome) {
    const fs::path shipped = ShippedFolderOf(executableDirectory);
    const bool isInstalled = !shipped.empty() && shipped != BesideExecutable(executableDirectory);
    if (!isInstalled && access(executableDirectory.c_str(), W_OK) == 0) {
        return executableDirectory.string();
    }
    return (dataHome / "Vestrel").string();
}

void FindAppPath() {
    SetAppPath(ChooseAppPath(platform::ExecutablePath().parent_path(), platform::DataHome()));
}

fs::path ShippedFolderOf(const fs::path& executableDirectory) {
    const fs::path prefix = executableDirectory.parent_path().parent_path();
    for (const fs::path& folder :
         {BesideExecutable(executableDirectory), prefix / "share" / "vestrel"}) {
        if (IsFolder(folder)) return folder;
    }
    return {};
}

fs::path ShippedPath(std::string_view name) {
    const fs::path folder = ShippedFolderOf(platform::ExecutablePath().parent_path());
    std::error_code failure;
    if (folder.empty() || !fs::exists(folder / name, failure)) return {};
    return folder / name;
}

fs::path SiblingProgram(std::string_view name) {
    fs::path own = App().AppPath + std::string(name);
    if (platform::FileExists(own.string())) return own;
    return platform::ExecutablePath().parent_path() / name;
}

} // namespace core
