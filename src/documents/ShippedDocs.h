#pragma once

#include <string>

namespace documents {

/// Returns the folder in which the program's own templates are used, and may be changed.
std::string ShippedDocsFolder();

/// Copies the templates that come with the program there, as core::InstallShippedFiles does.
void InstallShippedDocs();

/// Adds the program's own templates in `folder` to the list, each offered for the kind of record
/// that it is written for; those on the list already stay as they are. Throws on failure.
void AddShippedDocs(const std::string& folder);

} // namespace documents
