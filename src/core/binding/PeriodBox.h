#pragma once

#include <cstdint>

class QComboBox;

namespace core::binding {

/// Offers core::kPeriods in a combo box, with their days as the items' data, and selects the one of
/// `days`, the first one if there is none.
void FillPeriods(QComboBox& combo, std::int32_t days);

} // namespace core::binding
