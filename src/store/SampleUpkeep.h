#pragma once

#include <vector>

#include "store/SampleProperty.h"

namespace store {

/// Writes work orders of all statuses with their history, service contracts and trips.
void WriteSampleUpkeep(SampleBooks& books, const std::vector<SampleBuilding>& buildings);

} // namespace store
