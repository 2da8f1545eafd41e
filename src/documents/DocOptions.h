#pragma once

#include <string>

namespace documents {

/// The settings of the books about how letters are stored.
struct DocOptions {
    std::string docDirectory;
    bool associateDocs = false;
};

/// Saves both settings and notifies the open forms.
void SaveDocOptions(const DocOptions& options);

} // namespace documents
