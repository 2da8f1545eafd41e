#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace core {

/// Returns the directory of the program's files: the executable's directory if it is writable (a
/// build, a portable copy), otherwise "Vestrel" below `dataHome`, which is made if it is missing.
std::string ChooseAppPath(const std::filesystem::path& executableDirectory,
                          const std::filesystem::path& dataHome);

/// Returns the path of a program that is installed with this one: in the directory of the program's
/// files, or else where the executable is. There may be no such file.
std::filesystem::path SiblingProgram(std::string_view name);

} // namespace core
