#pragma once

#include <QIcon>
#include <cstdint>

namespace reports::screens {

/// The picture of a report in the catalogue by its code, 1 to 8; the page of a report for any
/// other.
QIcon ReportIcon(std::int16_t code);

} // namespace reports::screens
