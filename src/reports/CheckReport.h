#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/ReportDef.h"

namespace reports {

/// A mistake in a definition.
struct ReportFault {
    int line = 0;
    std::string text;
};

/// Returns the faults of a definition in the order of its lines: unknown keys, commands that the
/// section's class lacks, values that are not numbers, statements that don't compile, tags that
/// nothing fills. Statements are tried on a new, empty database, so no books are needed.
std::vector<ReportFault> CheckReport(std::string_view text, ReportKind kind);

} // namespace reports
