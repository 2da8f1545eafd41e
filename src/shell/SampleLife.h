#pragma once

#include <filesystem>
#include <functional>

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

inline constexpr int kSampleUnits = store::kSampleUnits;

/// Called after each day of the sample.
using SampleProgress = std::function<void(int daysDone, int days)>;

/// Creates a database in `folder` with a sample portfolio of this many units and simulates its two
/// years up to `today`, tenant by tenant: the program's own run posts the charges, and its own
/// payments settle them. The same units and date give the same books. Throws an Error if there is a
/// database already, which stays untouched, or if anything fails, including `progress`; then
/// nothing is left behind.
///
/// Afterwards the process's session is closed, and its clock is set to `today`.
void MakeSamplePortfolio(const std::filesystem::path& folder, int units, platform::Date today,
                         const SampleProgress& progress = {});

} // namespace shell
