#pragma once

#include <map>
#include <string>
#include <vector>

#include "reports/CheckReport.h"
#include "reports/ReportFile.h"

namespace reports {

/// The line of each key in the sections, by the section's number (0 the first) and the key.
using KeyLines = std::map<std::pair<std::size_t, std::string>, int>;

/// The section number in KeyLines for the page's keys, which belong to no section.
inline constexpr std::size_t kOfPage = static_cast<std::size_t>(-1);

/// Adds the faults in the statements and texts of a definition.
void CheckStatements(const ReportFile& report, const KeyLines& lines,
                     std::vector<ReportFault>& faults);

} // namespace reports
