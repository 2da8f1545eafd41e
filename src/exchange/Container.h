#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/DiskFile.h"

namespace exchange {

// A backup container: a sequence of entries, each a header of fixed length and the bytes of a file.

inline constexpr std::int16_t kContainerFormat = 2;
inline constexpr std::size_t kHeaderSize = 500;
/// The same, to add to positions.
inline constexpr auto kHeaderLength = static_cast<std::int64_t>(kHeaderSize);
inline constexpr std::size_t kFilePathSize = 260;

// The numbers are stored in the container.
enum class FileType : std::int16_t { Database = 1, Document = 2, FileObject = 3 };

struct EntryHeader {
    std::string filePath;
    std::int16_t fileType = 0;
    std::int16_t format = 0;
    std::int32_t fileSize = 0;
    /// The position of the first byte, counted from 1.
    std::int32_t dataPosition = 0;
    std::string fileDate;
};

/// Returns the bytes of a header. Throws an Error if the path is too long for its field.
std::string HeaderBytes(const EntryHeader& header);
EntryHeader ReadHeader(std::string_view bytes);

/// Returns the date and time of a file's last change in the form that a header stores.
std::string FileDateText(const std::filesystem::path& file);

/// Appends an entry with the bytes of `source` to the container, which is created if it doesn't
/// exist. Returns false if that fails; `result` is the reason ("File not found", "Error 28, ..."),
/// otherwise "Success". The bytes written before a failure stay, so that a full disk leaves an
/// entry that is cut; an entry whose source can't be read to its end is taken out again. Window
/// messages are processed in between.
bool PackFile(const std::filesystem::path& container, const std::filesystem::path& source,
              FileType type, std::string& result);

/// Does the same for a database that may be in use: the entry holds its state at one moment.
/// `progress` is called every few megabytes.
bool PackDatabase(const std::filesystem::path& container, const std::filesystem::path& database,
                  const std::function<void()>& progress, std::string& result);

/// Waits until the container is safely on the disk. Throws an Error if it can't be written there.
void SyncContainer(const std::filesystem::path& container);

} // namespace exchange
