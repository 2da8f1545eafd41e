#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace exchange {

/// Called by an export or import to show its progress; each function may be empty.
struct PortWatcher {
    /// Called with the new lines of the status.
    std::function<void(std::string_view lines)> status;
    /// Called with the progress in percent, 0 to 100.
    std::function<void(int percent)> progress;
    /// Asked before an import adds records of which the database has some already, and again if
    /// another program adds more of them in the meantime; returns whether to add them. Without it
    /// they are added.
    std::function<bool(std::int64_t known, std::int64_t records)> addAgain = {};

    void Status(std::string_view lines) const {
        if (status) status(lines);
    }
    /// Reports the progress: `done` of `total`.
    void Progress(std::int64_t done, std::int64_t total) const;
};

/// Asks for a file and writes the tables to it; tells the user if no tables or no file were chosen.
/// Returns true if the file was written. Throws on failure.
bool ExportDatabase(std::span<const std::string> tables, const PortWatcher& watcher);

/// Writes the rows of these tables of the process's database to a text file, which gets its name
/// only when it is complete. The rows are those of one moment, even if others write in the
/// meantime; tables without rows are left out. Window messages are processed in between. Throws an
/// Error if a table doesn't exist or is given twice, if `file` belongs to the database, or if
/// writing fails; then nothing is written, and an existing file is kept.
void WriteTables(std::span<const std::string> tables, const std::filesystem::path& file,
                 const PortWatcher& watcher);

enum class ImportMode { Test, Write };
enum class ImportRows { Append, Overwrite };
enum class ImportMessages { Show, Quiet };

/// The result of an import, which succeeded if `error` is empty.
struct ImportOutcome {
    std::string error;
    /// The line of the error, counted from 1; 0 if no line was read.
    std::int64_t line = 0;
    /// How many records are in the database now because of it.
    std::int64_t written = 0;
    /// How many of them it had already, and so has twice.
    std::int64_t known = 0;

    bool Succeeded() const { return error.empty(); }
};

/// Checks a whole text file of tables and then, unless it is only a test, adds its records to the
/// process's database. With Overwrite a table is emptied wherever the file begins it; the settings
/// table always is, since it has one row. A copy of the database is saved beside it before anything
/// is emptied.
///
/// A file with an error changes nothing. A value that its field refuses ends the import, and the
/// records before it stay, which the status says. Everything is one unit of work, so that a crash
/// leaves the database as it was. An import that the watcher declines changes nothing. The open
/// screens are notified of the imported records.
ImportOutcome ImportDatabase(const std::filesystem::path& file, ImportMode mode, ImportRows rows,
                             ImportMessages messages, const PortWatcher& watcher);

} // namespace exchange
