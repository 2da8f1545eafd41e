#pragma once

#include <string>

namespace documents {

/// How letters are kept, as the settings of the books hold it.
struct DocOptions {
    std::string docDirectory;
    bool associateDocs = false;
};

/// Writes both into the settings and notifies the open forms.
void SaveDocOptions(const DocOptions& options);

} // namespace documents
