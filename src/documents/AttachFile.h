#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace documents {

/// Whether the person hears of a path that is too long or no file's.
enum class Quiet { No, Yes };

/// Attaches a file to a record: notes where it stands, and nothing is copied. An empty path is
/// asked for first, and is then the one chosen. True when it was attached; a path of 256 characters
/// or more is refused unless `quiet`, a folder always. Failures are thrown.
bool AttachFile(std::int16_t kind, std::int32_t id, std::string& path, Quiet quiet = Quiet::No);

/// By its ending, in any case: "jpeg", "jpg", "gif" and "bmp" alone are pictures.
bool IsPicture(std::string_view path);

/// A file's name without folders and ending, at most 50 characters of it.
std::string DescriptionOfFile(std::string_view path);

} // namespace documents
