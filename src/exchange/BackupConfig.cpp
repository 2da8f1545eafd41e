#include "exchange/BackupConfig.h"

#include <fmt/core.h>

#include "core/Globals.h"
#include "exchange/FixedRecord.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"

namespace exchange {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kIntervalAt = 255;
constexpr std::size_t kKeepPeriodsAt = 259;
constexpr std::size_t kKeepIntervalAt = 263;
constexpr std::size_t kPeriodsAt = 267;
constexpr std::size_t kAllFilesAt = 271;
constexpr std::size_t kLastBackupAt = 273;
constexpr std::size_t kLastBackupSize = 10;
constexpr std::size_t kReservedAt = 283;
constexpr std::size_t kRecordSize = 1283;

constexpr std::int16_t kTrue = -1;

} // namespace

fs::path BackupConfigPath() {
    return fs::path(core::App().DbPath) / kBackupConfigFile;
}

platform::Interval IntervalOf(std::int32_t stored) {
    switch (stored) {
        case 2:
            return platform::Interval::Week;
        case 3:
            return platform::Interval::Month;
        case 4:
            return platform::Interval::Year;
        default:
            return platform::Interval::Day;
    }
}

void LoadBackupConfig(BackupConfig& config) {
    config = {};
    config.backupPath = platform::AddBackslash(core::App().AppPath + "Backup");
    const fs::path file = BackupConfigPath();
    if (!platform::FileExists(file.string())) return;
    const std::string bytes = platform::ReadWholeFile(file);
    if (bytes.size() < kRecordSize) {
        throw platform::Error(fmt::format("{} is cut: it has {} of {} bytes.", file.string(),
                                          bytes.size(), kRecordSize));
    }
    const FixedRecord record(bytes);
    config.backupPath = record.Text(0, kBackupPathSize);
    config.backupInterval = record.Long(kIntervalAt);
    config.keepPeriods = record.Long(kKeepPeriodsAt);
    config.keepInterval = record.Long(kKeepIntervalAt);
    config.backupPeriods = record.Long(kPeriodsAt);
    config.backupAllFiles = record.Integer(kAllFilesAt) != 0;
    const std::string last = record.Text(kLastBackupAt, kLastBackupSize);
    config.lastBackup = platform::Date::Parse(last);
    config.reserved = bytes.substr(kReservedAt, kRecordSize - kReservedAt);
}

bool SaveBackupConfig(const BackupConfig& config) {
    FixedRecordWriter record(kRecordSize);
    if (!record.SetText(0, kBackupPathSize, config.backupPath)) {
        throw platform::Error(
            fmt::format("The folder's path {} is too long: at most {} bytes can be kept.",
                        config.backupPath, kBackupPathSize));
    }
    record.SetLong(kIntervalAt, config.backupInterval);
    record.SetLong(kKeepPeriodsAt, config.keepPeriods);
    record.SetLong(kKeepIntervalAt, config.keepInterval);
    record.SetLong(kPeriodsAt, config.backupPeriods);
    record.SetInteger(kAllFilesAt, config.backupAllFiles ? kTrue : std::int16_t{0});
    record.SetText(kLastBackupAt, kLastBackupSize, config.lastBackup.ToText());
    record.SetBytes(kReservedAt, config.reserved);
    platform::WriteFileAtomically(BackupConfigPath(), record.Bytes());
    return true;
}

bool IsBackupDue() {
    try {
        if (!platform::FileExists(BackupConfigPath().string())) return true;
        BackupConfig config;
        LoadBackupConfig(config);
        if (!config.lastBackup.IsSet()) return true;
        return platform::DateDiff(IntervalOf(config.backupInterval), config.lastBackup,
                                  platform::Today()) >= config.backupPeriods;
    } catch (const std::exception&) {
        return false;
    }
}

std::string BackupNotice() {
    if (!IsBackupDue()) return {};
    BackupConfig config;
    LoadBackupConfig(config);
    return "Backup overdue. " + LastBackupText(config);
}

std::string LastBackupText(const BackupConfig& config) {
    return "Last Backup: " +
           (config.lastBackup.IsSet() ? config.lastBackup.ToText() : std::string("Never"));
}

} // namespace exchange
