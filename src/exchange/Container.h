#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/DiskFile.h"

namespace exchange {

// A backup container: entries one after another, each a header of fixed length and the file's
// bytes.

inline constexpr std::size_t kHeaderSize = 500;
inline constexpr std::size_t kFilePathSize = 260;

// The numbers are kept in the container.
enum class FileType : std::int16_t { Database = 1, Document = 2, FileObject = 3 };

struct EntryHeader {
    std::string filePath;
    std::int16_t fileType = 0;
    std::int16_t format = 0;
    std::int32_t fileSize = 0;
    /// Of the first byte, counted from 1.
    std::int32_t dataPosition = 0;
    std::string fileDate;
};

/// The header's bytes; throws an Error for a path that is too long for its field.
std::string HeaderBytes(const EntryHeader& header);
EntryHeader ReadHeader(std::string_view bytes);

/// The date and time of a file's last change as a header holds it.
std::string FileDateText(const std::filesystem::path& file);

/// Appends an entry with the bytes of `source` to the container, which is made if it is missing.
/// Returns false if that fails; `result` says why ("File not found", "Error 28, ..."), and is
/// "Success" otherwise. What was written of a failed entry stays. Window messages run in between.
bool PackFile(const std::filesystem::path& container, const std::filesystem::path& source,
              FileType type, std::string& result);

/// The same for a database that may be in use: the entry holds it as it is at one moment.
/// `progress` is called every few megabytes.
bool PackDatabase(const std::filesystem::path& container, const std::filesystem::path& database,
                  const std::function<void()>& progress, std::string& result);

/// Waits until the container is on the disk; throws an Error if it can't be brought there.
void SyncContainer(const std::filesystem::path& container);

} // namespace exchange
