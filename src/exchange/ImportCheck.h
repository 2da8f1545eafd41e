#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "exchange/Port.h"
#include "exchange/PortFile.h"

namespace exchange {

/// The result of the first reading of an import file.
struct ImportCheck {
    ImportOutcome outcome;
    std::int64_t tables = 0;
    std::int64_t records = 0;
    std::int64_t invalidLines = 0;
    /// How many of the records the database has already, if they were counted.
    std::int64_t known = 0;
    /// Whether the settings table is in it, which the import always replaces.
    bool hasConfiguration = false;
    PortReader::Letters letters = PortReader::Letters::Utf8;
};

/// Whether the records that the database has already are counted, for which the keys of every table
/// of the file are read.
enum class KnownRecords { Ignore, Count };

/// Checks every line of the file against the tables of the process's database; writes nothing. It
/// ends at the first error.
ImportCheck CheckImport(const std::filesystem::path& file, KnownRecords known,
                        const PortWatcher& watcher);

inline constexpr std::string_view kConfigurationTable = "Configuration";

/// Returns the texts of a line's items.
std::vector<std::string> TextsOf(const std::vector<PortItem>& items);

} // namespace exchange
