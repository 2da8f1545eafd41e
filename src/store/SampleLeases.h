#pragma once

#include <vector>

#include "store/SamplePeople.h"
#include "store/SamplePortfolio.h"

namespace store {

/// Lets the units, each by the next of the stories: their tenants and leases, and what becomes of
/// these.
SampleCast WriteSampleLeases(SampleBooks& books, const std::vector<SampleBuilding>& buildings);

} // namespace store
