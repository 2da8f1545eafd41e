#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace platform {

/// Starts a program that continues without us; a bare name is looked for along PATH. Returns false
/// if it can't be started; the program's result is not known.
bool StartDetached(const std::filesystem::path& program,
                   const std::vector<std::string>& arguments = {});

} // namespace platform
