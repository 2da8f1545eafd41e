#pragma once

#include <string_view>

#include "reports/LineGrammar.h"
#include "reports/clsRptData.h"
#include "reports/clsRptText.h"

namespace reports {

/// A command of the sections, with a function for each class of section; null for a class that
/// lacks the command, which then ends the run.
struct SectionCommand {
    std::string_view key;
    bool isAttribute; ///< of a [TEXT] section's last command
    void (*ofText)(clsRptText& section, const DefinitionLine& line);
    void (*ofData)(clsRptData& section, const DefinitionLine& line);
};

/// Returns the command of a key in upper case; null if there is none.
const SectionCommand* FindSectionCommand(std::string_view key);

} // namespace reports
