#pragma once

#include <string>

namespace documents {

/// Adds the program's own templates in `folder` to the list, each offered for the kind of record
/// that it is written for; those on the list already stay as they are. Throws on failure.
void AddShippedDocs(const std::string& folder);

} // namespace documents
