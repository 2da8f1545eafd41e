#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ContainerList.h"

namespace exchange {

enum class RestoreScope { Everything, DatabaseOnly };

/// An entry, and where it was restored or why it wasn't.
struct RestoredFile {
    std::string filePath;           ///< as the container names it
    std::filesystem::path restored; ///< empty when it wasn't
    std::string reason;             ///< empty if it was
};

struct RestoreReport {
    std::filesystem::path folder;
    std::vector<RestoredFile> files;
    /// Whether the container has a database, and the faults found in it.
    bool hasDatabase = false;
    std::vector<std::string> faults;

    /// Returns whether every file was restored and the database has no faults.
    bool IsWhole() const;
};

using RestoreListener = std::function<void(const RestoredFile& file)>;

/// Returns the place of an entry, relative to the folder of the restore: directly in it for the
/// database's own files; below "Documents" and "Files", with their whole former path, for templates
/// and attached files. Empty for a path that is invalid or leads out of the folder.
std::filesystem::path PlaceOf(const EntryHeader& header);

/// Extracts the whole entries of a container into a new or empty folder, never over existing files,
/// then checks the database. Window messages are processed in between. Throws an Error if nothing
/// could be restored; a folder created here is removed again then.
RestoreReport RestoreContainer(const std::filesystem::path& container,
                               const std::filesystem::path& folder, RestoreScope scope,
                               const RestoreListener& listener);

/// Returns the contents of a container as CSV: a header line, then a line for each entry.
std::string ListAsCsv(const std::vector<ContainerEntry>& entries);

} // namespace exchange
