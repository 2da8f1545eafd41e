#pragma once

#include <vector>

#include "store/SamplePeople.h"
#include "store/SamplePortfolio.h"

namespace store {

/// Lets the units: each gets the tenants and leases of the next story, and what becomes of them.
SampleCast WriteSampleLeases(SampleBooks& books, const std::vector<SampleBuilding>& buildings);

} // namespace store
