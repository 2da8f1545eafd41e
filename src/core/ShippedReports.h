#pragma once

#include <filesystem>

namespace core {

/// Where the report files that come with the program are: beside it in a build, below the share
/// folder of an installation. Empty if there are none.
std::filesystem::path ShippedReportsFolder();

/// Copies the shipped report files into the folder that the program reads them from. A file there
/// that was changed by the user stays as it is, and a newer one of ours is put beside it under the
/// name "Name.rpt.new"; a file that the user deleted stays deleted. What fails is left for the next
/// start.
void InstallShippedReports(const std::filesystem::path& shipped,
                           const std::filesystem::path& folder);

} // namespace core
