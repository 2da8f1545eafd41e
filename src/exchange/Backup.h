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
    /// The word of the outcome and the sentence that says it.
    std::string result;
    std::string text;
};

/// Where one run departs from the configuration, which isn't changed by it.
struct BackupChoice {
    std::optional<std::string> folder = {};
    std::optional<bool> allFiles = {};
};

using BackupListener = std::function<void(const BackupLine& line)>;

/// The configuration of a run with these choices.
BackupConfig Chosen(const BackupConfig& config, const BackupChoice& choice);

/// Makes a backup of the process's database as `config` and `choice` say: packs it into a new
/// container in the folder, with the related files if wanted, deletes expired containers, and keeps
/// today as the day of the last backup. The listener is called with each step: when it begins, if
/// it takes time, and with its result. Window messages run in between. When the database can't be
/// packed, no container is deleted and the day of the last backup stays as it was.
BackupReport RunBackup(BackupConfig& config, const BackupChoice& choice,
                       const BackupListener& listener);

/// How many containers a backup would leave behind; 0 when it would delete even its own.
std::size_t ContainersLeft(const BackupConfig& config);

} // namespace exchange
