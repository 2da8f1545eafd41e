#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/values/Date.h"

namespace exchange {

inline constexpr std::size_t kBackupPathSize = 255;

/// How backups are made, as the file BaR.cfg in the database directory keeps it.
struct BackupConfig {
    /// Ends in a separator.
    std::string backupPath;
    // Intervals: 1 days, 2 weeks, 3 months, 4 years.
    std::int32_t backupInterval = 1;
    std::int32_t keepPeriods = 14;
    std::int32_t keepInterval = 1;
    std::int32_t backupPeriods = 2;
    bool backupAllFiles = true;
    /// Unset for never.
    platform::Date lastBackup;
    /// The rest of the file, kept unchanged.
    std::string reserved;
};

inline constexpr std::string_view kBackupConfigFile = "BaR.cfg";
std::filesystem::path BackupConfigPath();

/// Returns the interval of a stored number; days for an unknown one.
platform::Interval IntervalOf(std::int32_t stored);

/// Reads the configuration; the defaults hold when there is no file. Throws an Error if the file
/// can't be read or is cut.
void LoadBackupConfig(BackupConfig& config);

/// Writes it and returns true. Throws an Error if it can't be written, or if the path is too long
/// for its field.
bool SaveBackupConfig(const BackupConfig& config);

/// Whether it is time for a backup: there was none yet, or the last one is old enough. Any error
/// makes it false.
bool IsBackupDue();

/// Returns the reminder of an overdue backup, with the day of the last one; empty if none is due.
std::string BackupNotice();

/// "Last Backup: 05/01/2024", or "Last Backup: Never".
std::string LastBackupText(const BackupConfig& config);

} // namespace exchange
