#pragma once

#include <filesystem>
#include <string>

namespace vestrelctl {

/// Sets the folder of the definition files; an empty name keeps the program's own.
void UseReportsFolder(const std::string& folder);
std::filesystem::path ReportsFolder();

/// Loads the catalogue of that folder; the program's own folder first receives the reports that
/// come with the program.
void LoadCatalogue();

} // namespace vestrelctl
