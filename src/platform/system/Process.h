#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace platform {

/// Starts a program that lives on without us; a bare name is looked for along PATH. False when it
/// can't be started. What becomes of it later is not told.
bool StartDetached(const std::filesystem::path& program,
                   const std::vector<std::string>& arguments = {});

} // namespace platform
