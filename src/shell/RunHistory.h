#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/RecordKinds.h"
#include "platform/database/Connection.h"
#include "shell/RunDigest.h"

namespace shell {

// The runs that posted rows or skipped records are kept in a text file beside the books, a line of
// JSON for each record, with the permissions of the books. The books themselves know nothing of it:
// without the file, or with another's, they are the same.

/// Runs to a day more than so many years ago are dropped when a later one is written.
inline constexpr int kYearsOfHistory = 7;

/// Returns the file for books of this file name; an empty path, which keeps no history, for an
/// empty one.
std::filesystem::path HistoryFileOf(const std::filesystem::path& books);
/// Returns the file of the open books.
std::filesystem::path HistoryFile(const platform::Connection& books);

/// A run of the past.
struct PastRun {
    /// Distinguishes the runs of a history.
    std::string name{};
    /// "11/22/2026 10:36:05".
    std::string at;
    /// The day that the books were brought to.
    platform::Date day{};
    RunDigest digest{};

    /// Returns the days from the first posted row on: "10/03/2026 to 11/22/2026", or one day.
    std::string Days() const;
};

/// Runs of a history, the last one first.
struct RunPage {
    std::vector<PastRun> runs;
    /// Whether there are runs from before the days that were asked for.
    bool hasEarlier = false;
};

/// Reads the runs to `since` and later days, or all of them if it is unset; none if there is no
/// file. Lines that can't be read are skipped. Throws Error if the file can't be opened.
RunPage ReadHistory(const std::filesystem::path& file, platform::Date since);
/// Returns all runs.
std::vector<PastRun> ReadHistory(const std::filesystem::path& file);

/// Listens to a run and writes it into the history; passes everything on to the next listener.
class RunRecorder : public core::RunListener {
  public:
    /// Begins the run now, on the session's books. `next` must outlive the recorder.
    RunRecorder(std::filesystem::path file, core::RunListener& next);

    void Posted(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                const std::vector<core::PostedRow>& rows) override;
    void Failed(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                std::string_view reason) override;

    /// Returns why the history couldn't be written; empty if it could. The run goes on without it.
    const std::string& Fault() const { return fault_; }

  private:
    void Append(const std::string& line);

    std::filesystem::path file_;
    core::RunListener& next_;
    std::string at_;
    std::string run_; ///< tells apart runs of the same second
    std::string fault_;
    bool hasWritten_ = false;
};

/// Brings the books up to date, and keeps the run in their history. Adds the results to `digest`. A
/// run that posted rows or skipped records ends with a broadcast of kind core::kNone.
void RunAndRecord(RunDigest& digest);

} // namespace shell
