#pragma once

#include <string_view>

#include "reports/LineGrammar.h"
#include "reports/clsRptData.h"
#include "reports/clsRptText.h"

namespace reports {

/// A command of the sections: what it does in a section of each class. A class that lacks it has
/// none; the run ends where a section is given a command that its class lacks.
struct SectionCommand {
    std::string_view key;
    bool isAttribute; ///< of a [TEXT] section's last command
    void (*ofText)(clsRptText& section, const DefinitionLine& line);
    void (*ofData)(clsRptData& section, const DefinitionLine& line);
};

/// The command of a key in upper case; null for a key that isn't a command.
const SectionCommand* FindSectionCommand(std::string_view key);

} // namespace reports
