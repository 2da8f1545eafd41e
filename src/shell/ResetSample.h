#pragma once

#include <filesystem>

#include "platform/values/Date.h"

namespace shell {

/// Replaces the sample in this folder by a new one, as it would be made on `today`, in one write:
/// nothing that was entered in it is kept. Throws an Error, and leaves the books as they are, if
/// they weren't made as a sample in this folder, if another program goes on writing to them, or if
/// anything fails. As after MakeSamplePortfolio, the process's session is closed.
void ResetSample(const std::filesystem::path& folder, int units, platform::Date today);

} // namespace shell
