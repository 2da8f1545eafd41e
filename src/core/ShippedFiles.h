#pragma once

#include <filesystem>
#include <string_view>

namespace core {

/// Where the files of one kind that come with the program are ("Reports", "Templates"): beside it
/// in a build, below the share folder of an installation. Empty if there are none.
std::filesystem::path ShippedFolder(std::string_view name);

/// Copies the files of the folder `shipped` into `folder`, where the program uses them and the user
/// may change them. A file there that the user changed stays as it is, and a newer one of ours is
/// put beside it under the name "Name.rpt.new"; a file that the user deleted stays deleted. A file
/// that can't be copied is left for the next start.
void InstallShippedFiles(const std::filesystem::path& shipped, const std::filesystem::path& folder);

} // namespace core
