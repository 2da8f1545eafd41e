#pragma once

#include <string_view>

#include "reports/ReportDef.h"

namespace reports {

/// Reads the [GENERAL] keys of a definition into its catalogue entry, whose Kind says which keys
/// count: a receipt takes only its description, notes and form. Unknown keys and words change
/// nothing.
void ReadCatalogueKeys(std::string_view text, ReportDef& report);

/// Whether a key in upper case is one of the catalogue's.
bool IsCatalogueKey(std::string_view key);
/// Whether the value of a catalogue key is one that it knows; true for keys whose value is free.
bool IsCatalogueValue(std::string_view key, std::string_view value);

} // namespace reports
