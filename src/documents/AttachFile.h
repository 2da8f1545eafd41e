#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/RecordKinds.h"

namespace documents {

/// How many characters of a path fit its field.
inline constexpr std::size_t kLongestPath = 255;

/// Whether to leave out the messages about a path that is too long or isn't a file.
enum class Quiet { No, Yes };

/// Attaches a file to a record by its path; nothing is copied. An empty path is asked for first and
/// set to the chosen one. Returns true if the file was attached; a path of 256 characters or more
/// is refused unless `quiet`, a folder always. Throws on failure.
bool AttachFile(core::RecordKind kind, std::int32_t id, std::string& path, Quiet quiet = Quiet::No);

/// Returns whether the extension, in any case, is "jpeg", "jpg", "gif" or "bmp".
bool IsPicture(std::string_view path);

/// Returns at most 50 characters of a file's name, without folders and extension.
std::string DescriptionOfFile(std::string_view path);

} // namespace documents
