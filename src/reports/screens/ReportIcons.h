#pragma once

#include <QIcon>
#include <cstdint>

namespace reports::screens {

/// Returns the picture of a report in the catalogue by its code, 1 to 8; the general one for any
/// other code.
QIcon ReportIcon(std::int16_t code);

} // namespace reports::screens
