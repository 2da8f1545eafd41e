#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ContainerList.h"

namespace exchange {

enum class RestoreScope { Everything, DatabaseOnly };

/// What became of an entry.
struct RestoredFile {
    std::string filePath;           ///< as the container names it
    std::filesystem::path restored; ///< empty when it wasn't
    std::string reason;             ///< why it wasn't
};

struct RestoreReport {
    std::filesystem::path folder;
    std::vector<RestoredFile> files;
    /// Whether there is a database, and what its check found wrong.
    bool hasDatabase = false;
    std::vector<std::string> faults;

    /// Every file of the container is there, and the database is sound.
    bool IsWhole() const;
};

using RestoreListener = std::function<void(const RestoredFile& file)>;

/// Where an entry belongs, relative to the folder that is restored into: the database's own files
/// directly in it, templates and attached files below "Documents" and "Files", with their whole
/// former path. Empty for a path that would lead out of the folder, or is none.
std::filesystem::path PlaceOf(const EntryHeader& header);

/// Extracts the whole entries of a container into a folder, which is made and must not exist, or be
/// empty; never over anything. Then checks the database. Window messages run in between. Throws an
/// Error if nothing could be restored; a folder made here is removed again then.
RestoreReport RestoreContainer(const std::filesystem::path& container,
                               const std::filesystem::path& folder, RestoreScope scope,
                               const RestoreListener& listener);

/// The list of a container as CSV with a line of captions, a line an entry.
std::string ListAsCsv(const std::vector<ContainerEntry>& entries);

} // namespace exchange
