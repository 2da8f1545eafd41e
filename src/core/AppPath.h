#pragma once

#include <filesystem>
#include <string>

namespace core {

/// The directory of the program's files: where the executable stands if that can be written (a
/// build, a portable copy), otherwise "Vestrel" below `dataHome`, which is made if it is missing.
std::string ChooseAppPath(const std::filesystem::path& executableDirectory,
                          const std::filesystem::path& dataHome);

} // namespace core
