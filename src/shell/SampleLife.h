#pragma once

#include <filesystem>
#include <functional>

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

inline constexpr int kSampleUnits = store::kSampleUnits;

/// Called for each day of the sample that is done.
using SampleProgress = std::function<void(int daysDone, int days)>;

/// Makes a database in `folder` with a sample portfolio of this many units and lives through its
/// two years up to `today`, tenant by tenant: the program's own run charges, its own payments
/// settle. The same units and day give the same books. An Error when there is a database already,
/// which stays untouched, or when something fails, in `progress` too; then nothing is left behind.
///
/// The process's session is closed afterwards, and its clock stands at `today`.
void MakeSamplePortfolio(const std::filesystem::path& folder, int units, platform::Date today,
                         const SampleProgress& progress = {});

} // namespace shell
