#pragma once

#include <filesystem>
#include <string>

namespace vestrelctl {

/// Makes a folder the one that holds the definition files; an empty name leaves the program's own.
void UseReportsFolder(const std::string& folder);
std::filesystem::path ReportsFolder();

} // namespace vestrelctl
