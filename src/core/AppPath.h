#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace core {

/// Returns the directory of the program's files, those that the user may change: the executable's
/// directory if it is writable and not part of an installation (a build, a portable copy),
/// otherwise "Vestrel" below `dataHome`. An installation is never written to, whoever starts it.
std::string ChooseAppPath(const std::filesystem::path& executableDirectory,
                          const std::filesystem::path& dataHome);

/// Sets the paths of the program's files from the program's place. Writes nothing to the disk.
void FindAppPath();

/// Returns the folder of the files that come with the program: "share" beside the executable (a
/// build, a portable copy), otherwise "share/vestrel" below the prefix of an installation, whose
/// executables are in a folder such as "lib/vestrel". Empty if there is neither.
std::filesystem::path ShippedFolderOf(const std::filesystem::path& executableDirectory);

/// Returns the path of a shipped file or folder ("Reports", "help/Vestrel.qch") of this program;
/// empty if it isn't there.
std::filesystem::path ShippedPath(std::string_view name);

/// Returns the path of a program that is installed with this one: in the directory of the program's
/// files, or else where the executable is. There may be no such file.
std::filesystem::path SiblingProgram(std::string_view name);

} // namespace core
