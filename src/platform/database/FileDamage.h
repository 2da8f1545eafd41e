#pragma once

#include <filesystem>
#include <string>

namespace platform {

/// Runs the engine's own check over a database file, which is only read. Returns the first fault
/// that it finds, or why the check can't run; empty if the file is sound.
std::string FileDamage(const std::filesystem::path& file);

} // namespace platform
