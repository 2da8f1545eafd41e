#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "exchange/FinExportSettings.h"

namespace exchange {

/// Returns how many transactions of an account would be exported; 0 on failure.
std::int32_t CountForExport(std::int32_t idAccount, const ExportRange& range);

struct FinExportRequest {
    FinType type = FinType::Csv;
    ExportRange range = {};
    MarkExported mark = MarkExported::No;
    LimitLength limit = LimitLength::No;
    /// In the order in which they are written.
    std::vector<std::int32_t> accounts = {};
};

/// Why a request can't be carried out, and the title of the message; both empty if it can.
struct FinExportObjection {
    std::string title;
    std::string text;
};
FinExportObjection ObjectionTo(const FinExportRequest& request);

/// Writes the entries of the accounts to `file`; an account whose transactions can't be read is
/// skipped. Returns the number of transactions, each counted once per account.
///
/// The marks are written in one unit of work that is committed once the file is completely on the
/// disk. Throws an Error on failure, or if `file` belongs to the database; then nothing is marked,
/// and an existing file of that name is kept.
std::int64_t RunFinExport(const FinExportRequest& request, const std::filesystem::path& file);

/// Returns the message after an export of `count` transactions.
std::string ExportedText(std::int64_t count);

} // namespace exchange
