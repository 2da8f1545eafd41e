#include "exchange/Backup.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/MessagePump.h"
#include "exchange/Container.h"
#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"

namespace exchange {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSuccess = "Success";
constexpr std::string_view kWarning = "Warning";
constexpr std::string_view kFailed = "Failed";
constexpr std::string_view kRunning;

constexpr std::string_view kDocumentMark = "[d]";
constexpr std::string_view kObjectMark = "[f]";
constexpr std::size_t kMarkSize = 3;
constexpr std::size_t kOwnFiles = 3; // database, version and configuration

/// Returns whether files can be written to the folder; an existing file of that name is neither
/// changed nor deleted.
bool CanWriteTo(const fs::path& folder) {
    if (folder.empty()) return false;
    const fs::path test = folder / "test.vbk";
    const int made = open(test.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (made >= 0) {
        close(made);
        unlink(test.c_str());
        return true;
    }
    if (errno != EEXIST) return false;
    const int there = open(test.c_str(), O_WRONLY | O_CLOEXEC);
    if (there >= 0) close(there);
    return there >= 0;
}

void AddFiles(platform::Connection& database, std::string_view sql, std::string_view mark,
              std::vector<std::string>& list) {
    platform::Recordset rows;
    for (rows.Open(database, sql); !rows.Eof(); rows.MoveNext()) {
        if (!rows[0].IsBlank()) list.push_back(std::string(mark) + rows[0].AsText());
    }
}

/// Returns the templates and attached files named in the database. It doesn't use the session,
/// which is closed when the program ends. On failure, returns what it has found so far.
std::vector<std::string> RelatedFiles() {
    std::vector<std::string> list;
    try {
        platform::Connection database;
        database.Open(core::App().DbFile, platform::OpenMode::ReadOnly);
        AddFiles(database, "SELECT FilePath FROM Doc", kDocumentMark, list);
        AddFiles(database, "SELECT FilePath FROM FileObject", kObjectMark, list);
    } catch (const platform::Error&) {
        return list;
    }
    return list;
}

bool IsContainer(const fs::path& file) {
    const std::string name = file.filename().string();
    constexpr std::string_view kHead = "Vestrel.";
    constexpr std::string_view kTail = ".vbk";
    return name.size() > kHead.size() + kTail.size() && name.starts_with(kHead) &&
           name.ends_with(kTail);
}

bool IsExpired(const BackupConfig& config, platform::Date made) {
    return made.IsSet() && platform::DateDiff(IntervalOf(config.keepInterval), made,
                                              platform::Today()) >= config.keepPeriods;
}

std::vector<fs::path> Containers(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        std::error_code unknown;
        if (IsContainer(entry->path()) && entry->is_regular_file(unknown)) {
            found.push_back(entry->path());
        }
    }
    std::ranges::sort(found);
    return found;
}

std::size_t RemoveExpired(const BackupConfig& config) {
    std::size_t removed = 0;
    for (const fs::path& container : Containers(config.backupPath)) {
        std::error_code failure;
        if (!IsExpired(config, platform::ChangedAt(container).day)) continue;
        if (fs::remove(container, failure)) ++removed;
    }
    return removed;
}

fs::path FreeContainer(const fs::path& folder) {
    std::error_code failure;
    for (int number = 0;; ++number) {
        fs::path container = folder / fmt::format("Vestrel.{}.vbk", number);
        const fs::file_status status = fs::symlink_status(container, failure);
        if (!fs::exists(status)) return container;
    }
}

/// Runs one backup, step by step.
class Run {
  public:
    Run(BackupConfig& stored, const BackupChoice& choice, const BackupListener& listener)
        : stored_(stored),
          config_(Chosen(stored, choice)),
          listener_(listener),
          folder_(config_.backupPath) {}

    BackupReport Do() {
        Tell("Starting backup", kSuccess);
        if (!TestFolder()) return FolderFailed();
        std::vector<std::string> related;
        if (config_.backupAllFiles) related = RelatedFiles();
        Tell(fmt::format("Found {} files to back up", related.size() + kOwnFiles), kSuccess);
        container_ = FreeContainer(folder_);
        Tell(fmt::format("Backing up to file {}", container_.string()), kSuccess);
        PackOwnFiles();
        PackRelated(related);
        SyncAll();
        Finish();
        return End(outcome_);
    }

  private:
    void Tell(std::string action, std::string_view result) const {
        if (listener_) listener_({std::move(action), std::string(result)});
        core::LetMessagesRun();
    }

    bool TestFolder() const {
        const bool can = CanWriteTo(folder_);
        Tell("Testing destination directory", can ? kSuccess : kFailed);
        return can;
    }

    BackupReport FolderFailed() const {
        BackupReport report{BackupOutcome::Failed, std::string(kFailed),
                            "Error opening test file in " + config_.backupPath};
        Tell(report.text, report.result);
        return report;
    }

    void Note(BackupOutcome outcome) { outcome_ = std::max(outcome_, outcome); }

    /// Saves the settings first, so that the container holds this run's settings even if it is the
    /// first run.
    void KeepSettings() const {
        try {
            SaveBackupConfig(stored_);
        } catch (const platform::Error& failure) {
            Tell(failure.what(), kFailed);
        }
    }

    void PackOwnFiles() {
        constexpr const char* kAction = "Backing up database files";
        Tell(kAction, kRunning);
        KeepSettings();
        const fs::path folder = core::App().DbPath;
        std::string result;
        if (!PackDatabase(container_, core::App().DbFile, core::LetMessagesRun, result)) {
            Note(BackupOutcome::Failed);
            Tell(core::App().DbFile, result);
        }
        PackOther(folder / "Version", FileType::Database);
        PackOther(BackupConfigPath(), FileType::Database);
        const std::string_view word = outcome_ == BackupOutcome::Success   ? kSuccess
                                      : outcome_ == BackupOutcome::Partial ? kWarning
                                                                           : kFailed;
        Tell(kAction, word);
    }

    /// Packs a file; a failure adds a line of its own.
    bool PackOther(const fs::path& file, FileType type) {
        std::string result;
        if (file.string().size() > kFilePathSize) {
            Tell(fmt::format("{} (the path is longer than {} bytes)", file.string(), kFilePathSize),
                 kFailed);
        } else if (PackFile(container_, file, type, result)) {
            core::LetMessagesRun();
            return true;
        } else {
            Tell(file.string(), result);
        }
        Note(BackupOutcome::Partial);
        return false;
    }

    void PackRelated(const std::vector<std::string>& related) {
        constexpr const char* kAction = "Backing up related files";
        Tell(kAction, kRunning);
        bool isWhole = true;
        for (const std::string& line : related) {
            const FileType type =
                line.starts_with(kObjectMark) ? FileType::FileObject : FileType::Document;
            isWhole = PackOther(line.substr(kMarkSize), type) && isWhole;
        }
        Tell(kAction, isWhole ? kSuccess : kWarning);
    }

    /// A container that isn't safely on the disk isn't a backup.
    void SyncAll() {
        std::error_code ignored;
        if (!fs::exists(container_, ignored)) return;
        try {
            SyncContainer(container_);
        } catch (const platform::Error& failure) {
            Note(BackupOutcome::Failed);
            Tell(failure.what(), kFailed);
        }
    }

    // If the database can't be packed, it may be damaged: then the older containers are needed to
    // restore it, and the next backup is as urgent as before.
    void Finish() {
        if (outcome_ == BackupOutcome::Failed) {
            Tell("Removing expired backups", kWarning);
            Tell("Removed 0 expired files", kWarning);
            return;
        }
        Tell("Removing expired backups", kSuccess);
        Tell(fmt::format("Removed {} expired files", RemoveExpired(config_)), kSuccess);
        stored_.lastBackup = platform::Today();
        KeepSettings();
    }

    BackupReport End(BackupOutcome outcome) const {
        BackupReport report{outcome, {}, {}};
        switch (outcome) {
            case BackupOutcome::Success:
                report.result = kSuccess;
                report.text = "The backup was completed successfully.";
                break;
            case BackupOutcome::Partial:
                report.result = kWarning;
                report.text = "The backup was partially completed (database backup was OK).";
                break;
            case BackupOutcome::Failed:
                report.result = kFailed;
                report.text = "The database backup has failed.";
                break;
        }
        Tell(report.text, report.result);
        return report;
    }

    BackupConfig& stored_;
    BackupConfig config_; // of this run
    const BackupListener& listener_;
    fs::path folder_;
    fs::path container_;
    BackupOutcome outcome_ = BackupOutcome::Success;
};

} // namespace

BackupConfig Chosen(const BackupConfig& config, const BackupChoice& choice) {
    BackupConfig chosen = config;
    if (choice.folder) chosen.backupPath = platform::AddBackslash(*choice.folder);
    if (choice.allFiles) chosen.backupAllFiles = *choice.allFiles;
    return chosen;
}

BackupReport RunBackup(BackupConfig& config, const BackupChoice& choice,
                       const BackupListener& listener) {
    return Run(config, choice, listener).Do();
}

std::size_t ContainersLeft(const BackupConfig& config) {
    const std::size_t own = IsExpired(config, platform::Today()) ? 0 : 1;
    const std::vector<fs::path> containers = Containers(config.backupPath);
    return own + static_cast<std::size_t>(
                     std::ranges::count_if(containers, [&](const fs::path& container) {
                         return !IsExpired(config, platform::ChangedAt(container).day);
                     }));
}

} // namespace exchange
