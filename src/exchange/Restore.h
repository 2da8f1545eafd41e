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
    /// Whether there is a database, and the faults that its check found.
    bool hasDatabase = false;
    std::vector<std::string> faults;

    /// Every file of the container is there, and the database is sound.
    bool IsWhole() const;
};

using RestoreListener = std::function<void(const RestoredFile& file)>;

/// Returns the place of an entry, relative to the folder that is restored into: the database's own
/// files directly in it, templates and attached files below "Documents" and "Files", with their
/// whole former path. Empty for a path that would lead out of the folder or isn't valid.
std::filesystem::path PlaceOf(const EntryHeader& header);

/// Extracts the whole entries of a container into a folder, which is made and must not exist, or be
/// empty; never over anything. Then checks the database. Window messages run in between. Throws an
/// Error if nothing could be restored; a folder made here is removed again then.
RestoreReport RestoreContainer(const std::filesystem::path& container,
                               const std::filesystem::path& folder, RestoreScope scope,
                               const RestoreListener& listener);

/// Returns the list of a container as CSV: a line of captions, then a line for each entry.
std::string ListAsCsv(const std::vector<ContainerEntry>& entries);

} // namespace exchange
