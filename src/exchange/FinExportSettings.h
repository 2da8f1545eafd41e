#pragma once

#include <cstdint>
#include <string>

#include "platform/values/Date.h"

namespace exchange {

// The numbers are stored in the settings.
enum class FinType { Csv = 0, Qif = 1, Iif = 2 };
enum class TransRange { New = 0, All = 1, DateRange = 2 };

enum class MarkExported { No, Yes };
enum class LimitLength { No, Yes };

/// The transactions to export: those not yet exported, all, or those from `start` to `end`.
struct ExportRange {
    TransRange range = TransRange::New;
    platform::Date start;
    platform::Date end;
};

/// The choices of the last financial export.
struct FinExportSettings {
    FinType finType = FinType::Csv;
    ExportRange range;
    bool markExported = false;
    bool showCount = false;
    bool limitLength = false;
    /// The sorted column of the list of accounts.
    std::int32_t sortedColumn = 0;
    bool sortDescending = false;
    /// The path without its extension.
    std::string lastFileName;
};

/// Loads the settings. A missing or invalid setting gets its default: new transactions as CSV, and
/// the month up to today as the range.
FinExportSettings LoadFinExportSettings();

/// Saves all settings but the file's name, which SaveLastFileName saves after each export.
void SaveFinExportSettings(const FinExportSettings& settings);
void SaveLastFileName(const std::string& path);

} // namespace exchange
