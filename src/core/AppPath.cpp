#include "core/AppPath.h"

#include <unistd.h>

namespace core {

std::string ChooseAppPath(const std::filesystem::path& executableDirectory,
                          const std::filesystem::path& dataHome) {
    if (access(executableDirectory.c_str(), W_OK) == 0) return executableDirectory.string();
    const std::filesystem::path ours = dataHome / "Vestrel";
    std::error_code ignored;
    std::filesystem::create_directories(ours, ignored);
    return ours.string();
}

} // namespace core
