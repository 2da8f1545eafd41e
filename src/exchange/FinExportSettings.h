#pragma once

#include <cstdint>
#include <string>

#include "platform/values/Date.h"

namespace exchange {

// The numbers are kept in the settings.
enum class FinType { Csv = 0, Qif = 1, Iif = 2 };
enum class TransRange { New = 0, All = 1, DateRange = 2 };

enum class MarkExported { No, Yes };
enum class LimitLength { No, Yes };

/// The transactions that an export takes: those not yet exported, all, or those of the days from
/// `start` to `end`.
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
    /// Of the list of accounts.
    std::int32_t sortedColumn = 0;
    bool sortDescending = false;
    /// Path without its extension.
    std::string lastFileName;
};

/// Reads the settings. A missing or invalid one has its default: new transactions as CSV, and the
/// month up to today for a range of days.
FinExportSettings LoadFinExportSettings();

/// Writes all of them but the file's name, which SaveLastFileName writes after each export.
void SaveFinExportSettings(const FinExportSettings& settings);
void SaveLastFileName(const std::string& path);

} // namespace exchange
