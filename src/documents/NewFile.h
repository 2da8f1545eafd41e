#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace documents {

/// Writes `contents` into a file that didn't exist: tries `name(first)`, `name(first + 1)`, ... and
/// takes the first name that is free, so that two programs never write into one file. Returns its
/// path. Throws platform::Error with the reason on failure and leaves no file then.
std::filesystem::path WriteNewFile(const std::function<std::filesystem::path(int)>& name, int first,
                                   std::string_view contents);

} // namespace documents
