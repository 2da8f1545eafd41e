#pragma once

#include <vector>

#include "store/SamplePortfolio.h"
#include "store/SampleProperty.h"

namespace store {

/// Writes the mortgages of most of the buildings as they were two years ago, paid until then, and
/// takes them off the buildings' equity. Returns how each is going to be paid.
std::vector<SampleLoan> WriteSampleLoans(SampleBooks& books,
                                         const std::vector<SampleBuilding>& buildings);

/// Returns the day from which the sample's mortgages are charged.
platform::Date SampleLoansBegin(platform::Date today);

} // namespace store
