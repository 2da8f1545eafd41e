#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/values/Date.h"

namespace exchange {

inline constexpr std::size_t kBackupPathSize = 255;

/// The configuration of backups, stored as BaR.cfg in the database directory.
struct BackupConfig {
    /// Ends in a separator.
    std::string backupPath;
    // Intervals: 1 days, 2 weeks, 3 months, 4 years.
    std::int32_t backupInterval = 1;
    std::int32_t keepPeriods = 14;
    std::int32_t keepInterval = 1;
    std::int32_t backupPeriods = 2;
    bool backupAllFiles = true;
    /// Unset if there was never a backup.
    platform::Date lastBackup;
    /// The rest of the file, preserved unchanged.
    std::string reserved;
};

inline constexpr std::string_view kBackupConfigFile = "BaR.cfg";
std::filesystem::path BackupConfigPath();

/// Returns the interval for a stored number; days for an unknown one.
platform::Interval IntervalOf(std::int32_t stored);

/// Reads the configuration, or the defaults if there is no file. Throws an Error if the file can't
/// be read or is cut off.
void LoadBackupConfig(BackupConfig& config);

/// Writes the configuration and returns true. Throws an Error if it can't be written, or if the
/// path is too long for its field.
bool SaveBackupConfig(const BackupConfig& config);

/// Returns whether a backup is due: there was none yet, or the last one is old enough. Returns
/// false on any error.
bool IsBackupDue();

/// Returns the reminder of an overdue backup, with the date of the last one; empty if none is due.
std::string BackupNotice();

/// Returns "Last Backup: 05/01/2024", or "Last Backup: Never".
std::string LastBackupText(const BackupConfig& config);

} // namespace exchange
