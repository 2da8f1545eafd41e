#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/system/Process.h"

namespace documents {

/// Starts a program that isn't waited for; false when it can't be started.
using ProgramStarter = std::function<bool(const std::filesystem::path& program,
                                          const std::vector<std::string>& arguments)>;

/// Starts the picture show on all pictures of a record; of kind 39 on those of a unit and of its
/// building. Says so when there are none, and when there is no picture show.
void ShowPictures(std::int16_t kind, std::int32_t id, std::string title = {},
                  const ProgramStarter& start = platform::StartDetached);

} // namespace documents
