#pragma once

#include <map>
#include <string>
#include <vector>

#include "reports/CheckReport.h"
#include "reports/ReportFile.h"

namespace reports {

/// The lines of a section's keys, by the section's number (0 the first) and the key.
using KeyLines = std::map<std::pair<std::size_t, std::string>, int>;

/// The faults in the statements and texts of a definition that was read.
void CheckStatements(const ReportFile& report, const KeyLines& lines,
                     std::vector<ReportFault>& faults);

} // namespace reports
