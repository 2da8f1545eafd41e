#pragma once

#include <filesystem>

#include "platform/values/Date.h"

namespace shell {

/// Makes the sample in this folder new, as a sample made on `today` is, in one write: nothing
/// entered in it stays. Throws an Error, and leaves the books as they are, if they weren't made as
/// a sample in this folder, if another program goes on writing to them, or if anything fails. As
/// after MakeSamplePortfolio, the process's session is closed.
void ResetSample(const std::filesystem::path& folder, int units, platform::Date today);

} // namespace shell
