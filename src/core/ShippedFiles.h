#pragma once

#include <filesystem>

namespace core {

/// Copies the files of the folder `shipped` into `folder`, where the program uses them and the user
/// may change them. A file there that the user changed stays as it is, and a newer one of ours is
/// put beside it under the name "Name.rpt.new"; a file that the user deleted stays deleted. A file
/// that can't be copied is left for the next start.
void InstallShippedFiles(const std::filesystem::path& shipped, const std::filesystem::path& folder);

} // namespace core
