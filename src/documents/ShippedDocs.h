#pragma once

#include <string>

namespace documents {

/// Returns the folder from which the program's own templates are used, and where they may be
/// changed.
std::string ShippedDocsFolder();

/// Copies the shipped templates there, as core::InstallShippedFiles does.
void InstallShippedDocs();

/// Adds the program's own templates in `folder` to the list, each for the kind of record that it
/// was written for; templates already on the list are left alone. Throws on failure.
void AddShippedDocs(const std::string& folder);

} // namespace documents
