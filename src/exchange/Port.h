#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace exchange {

/// What the screen, or whoever else started it, shows of an export or import; either may be empty.
struct PortWatcher {
    /// Replaces the lines of the status.
    std::function<void(std::string_view lines)> status;
    /// 0 to 100.
    std::function<void(int percent)> progress;

    void Status(std::string_view lines) const {
        if (status) status(lines);
    }
    /// `done` of `total`.
    void Progress(std::int64_t done, std::int64_t total) const;
};

/// Asks for a file and writes the tables to it; says so when none are given, or no file. True when
/// the file was written. Failures are thrown.
bool ExportDatabase(std::span<const std::string> tables, const PortWatcher& watcher);

/// Writes the rows of these tables of the process's database to a text file, which appears under
/// its name when it is whole. The rows are those of one moment, whatever is written meanwhile;
/// tables without rows are left out. Window messages run in between. Throws an Error if a table
/// doesn't exist or is given twice, if `file` belongs to the database, or if writing fails; then
/// there is no file, and one that was there before is kept.
void WriteTables(std::span<const std::string> tables, const std::filesystem::path& file,
                 const PortWatcher& watcher);

enum class ImportMode { Test, Write };
enum class ImportRows { Append, Overwrite };
enum class ImportMessages { Show, Quiet };

/// What came of an import; without an error it is done.
struct ImportOutcome {
    std::string error;
    /// Where the error was found, counted from 1; 0 if no line was read.
    std::int64_t line = 0;

    bool Succeeded() const { return error.empty(); }
};

/// Checks a text file of tables as a whole, and then, unless it is only a test, adds its records to
/// the process's database. With Overwrite a table is emptied wherever the file begins it; the
/// settings' table always is, since it has one row. Before anything is emptied a copy of the
/// database is kept beside it.
///
/// A file with an error changes nothing. A value that its field refuses ends the writing: the
/// records before it stay. All of it is one unit of work, so that a crash leaves the database as
/// before. The screens are told of what came in.
ImportOutcome ImportDatabase(const std::filesystem::path& file, ImportMode mode, ImportRows rows,
                             ImportMessages messages, const PortWatcher& watcher);

} // namespace exchange
