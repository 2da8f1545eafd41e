#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/ReportDef.h"

namespace reports {

/// Something in a definition that its author did not mean.
struct ReportFault {
    int line = 0;
    std::string text;
};

/// Looks through a definition as its author would: keys that nobody reads, commands that the
/// section lacks, numbers that are none, statements that don't compile, tags that nobody fills. In
/// the order of the lines; empty for a definition without faults. The statements are tried on a
/// new, empty database, so no books are needed.
std::vector<ReportFault> CheckReport(std::string_view text, ReportKind kind);

} // namespace reports
