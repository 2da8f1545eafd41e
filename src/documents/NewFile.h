#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace documents {

/// Writes `contents` to a new file: tries `name(first)`, `name(first + 1)`, ... and takes the first
/// free name, so that two programs never write to the same file. Returns its path. Throws
/// platform::Error with the reason on failure, and leaves no file then.
std::filesystem::path WriteNewFile(const std::function<std::filesystem::path(int)>& name, int first,
                                   std::string_view contents);

} // namespace documents
