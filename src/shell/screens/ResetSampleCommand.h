#pragma once

#include <filesystem>

namespace shell::screens {

/// Makes the open sample new after a question, by this command-line program, and shows it. The
/// forms are closed first; if one of them refuses, nothing happens. A failure is a message, and the
/// sample is then as it was.
void ResetOpenSample(const std::filesystem::path& vestrelctl);

} // namespace shell::screens
