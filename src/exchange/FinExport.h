#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "exchange/FinExportSettings.h"

namespace exchange {

/// How many transactions the export of an account takes; 0 on failure.
std::int32_t CountForExport(std::int32_t idAccount, const ExportRange& range);

struct FinExportRequest {
    FinType type = FinType::Csv;
    ExportRange range = {};
    MarkExported mark = MarkExported::No;
    LimitLength limit = LimitLength::No;
    /// The accounts in the order in which they are written.
    std::vector<std::int32_t> accounts = {};
};

/// The reason why a request can't be carried out, and the title of its message; both empty if it
/// can.
struct FinExportObjection {
    std::string title;
    std::string text;
};
FinExportObjection ObjectionTo(const FinExportRequest& request);

/// Writes the entries of the accounts to `file`; an account whose transactions can't be read is
/// skipped. Returns how many transactions were found, each counted once for each account.
///
/// The marks are one unit of work, committed when the file is whole and on the disk. Throws an
/// Error if that fails, or if `file` belongs to the database; then nothing is marked, and a file
/// that had the name before is kept.
std::int64_t RunFinExport(const FinExportRequest& request, const std::filesystem::path& file);

/// The message after an export of `count` transactions.
std::string ExportedText(std::int64_t count);

} // namespace exchange
