#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "core/RecordKinds.h"
#include "platform/system/Process.h"

namespace documents {

/// Starts a program without waiting for it; returns false if it can't be started.
using ProgramStarter = std::function<bool(const std::filesystem::path& program,
                                          const std::vector<std::string>& arguments)>;

/// Starts the slide show of all pictures of a record; for kind 39, the pictures of a unit and of
/// its building. Tells the user if there are no pictures, or if the slide show isn't installed.
void ShowPictures(core::RecordKind kind, std::int32_t id, std::string title = {},
                  const ProgramStarter& start = platform::StartDetached);

} // namespace documents
