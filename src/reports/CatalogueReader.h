#pragma once

#include <string_view>

#include "reports/ReportDef.h"

namespace reports {

/// Reads the [GENERAL] keys of a definition into its catalogue entry, whose Kind decides which
/// keys are read: a receipt takes only its description, notes and form. Unknown keys and words are
/// ignored.
void ReadCatalogueKeys(std::string_view text, ReportDef& report);

/// Returns true for a catalogue key in upper case.
bool IsCatalogueKey(std::string_view key);
/// Returns true for a value that a catalogue key accepts; a key with free text accepts any.
bool IsCatalogueValue(std::string_view key, std::string_view value);

} // namespace reports
