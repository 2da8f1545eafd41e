#pragma once

#include <vector>

#include "store/SampleProperty.h"

namespace store {

/// Writes the mortgages of most of the buildings, current and paid up to the first of next month,
/// and takes them off the buildings' equity.
void WriteSampleLoans(SampleBooks& books, const std::vector<SampleBuilding>& buildings);

} // namespace store
