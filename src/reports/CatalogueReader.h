#pragma once

#include <string_view>

#include "reports/ReportDef.h"

namespace reports {

/// Reads the [GENERAL] keys of a definition into its catalogue entry, whose Kind says which keys
/// count: a receipt takes only its description, notes and form. Unknown keys and words change
/// nothing.
void ReadCatalogueKeys(std::string_view text, ReportDef& report);

} // namespace reports
