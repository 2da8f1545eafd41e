#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/BackupConfig.h"

namespace exchange {

/// A step of a backup and its result.
struct BackupLine {
    std::string action;
    /// "Success", "Warning", "Failed", or what the packing of a file returned; empty while the step
    /// is still running.
    std::string result;
};

enum class BackupOutcome {
    Success, ///< everything is in the container
    Partial, ///< the database is, another file is not
    Failed,  ///< the database is not
};

struct BackupReport {
    BackupOutcome outcome = BackupOutcome::Failed;
    /// The status and its sentence.
    std::string result;
    std::string text;
};

/// Deviations of one run from the configuration, which stays unchanged.
struct BackupChoice {
    std::optional<std::string> folder = {};
    std::optional<bool> allFiles = {};
};

using BackupListener = std::function<void(const BackupLine& line)>;

/// Returns the configuration of a run with these choices.
BackupConfig Chosen(const BackupConfig& config, const BackupChoice& choice);

/// Makes a backup of the process's database as set in `config` and `choice`: packs it into a new
/// container in the backup folder, with the related files if wanted, deletes expired containers,
/// and stores today as the date of the last backup. The listener is called for each step: when it
/// starts, if it takes time, and with its result. Window messages are processed in between. If the
/// database can't be packed, no container is deleted and the date of the last backup doesn't
/// change.
BackupReport RunBackup(BackupConfig& config, const BackupChoice& choice,
                       const BackupListener& listener);

/// Returns how many containers a backup would leave; 0 if it would delete even its own.
std::size_t ContainersLeft(const BackupConfig& config);

} // namespace exchange
