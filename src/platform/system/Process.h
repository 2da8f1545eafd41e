#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace platform {

/// Starts a program that lives on without us; a bare name is looked for along PATH. False when it
/// can't be started. Its result is not known.
bool StartDetached(const std::filesystem::path& program,
                   const std::vector<std::string>& arguments = {});

} // namespace platform
