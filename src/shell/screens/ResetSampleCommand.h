#pragma once

#include <filesystem>

namespace shell::screens {

/// Asks a question, then replaces the open sample by a new one with this command-line program, and
/// shows it. The forms are closed first; if one of them refuses, nothing happens. If it fails, the
/// user gets a message, and the sample is as before.
void ResetOpenSample(const std::filesystem::path& vestrelctl);

} // namespace shell::screens
