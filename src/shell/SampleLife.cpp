#include "shell/SampleLife.h"

#include <algorithm>
#include <span>
#include <utility>

#include "core/BooksSettings.h"
#include "core/Configuration.h"
#include "core/DailyRun.h"
#include "core/Globals.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "documents/ShippedDocs.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "shell/RunHistory.h"
#include "shell/SampleBorrower.h"
#include "shell/SampleCredits.h"
#include "shell/SampleExpenses.h"
#include "shell/SampleTenant.h"
#include "shell/TakeBack.h"
#include "store/CreateDatabase.h"

namespace shell {

using platform::Connection;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

/// The process's session on a file, closed at the end of its scope.
class OpenSession {
  public:
    explicit OpenSession(const std::filesystem::path& file) { Session().Open(file); }
    ~OpenSession() { core::CloseDatabase(Session()); }
    OpenSession(const OpenSession&) = delete;
    OpenSession& operator=(const OpenSession&) = delete;

    static Connection& Session() { return core::App().Connection; }
};

/// Ids begin at the minute of midnight, so that the same date gives the same ids.
void MakeSettings(Connection& connection, Date today) {
    core::CreateDefaultConfiguration(connection);
    constexpr int kMinutesPerDay = 1440;
    const int days = today.Serial() - Date(2000, 1, 1).Serial();
    connection.Execute("UPDATE Configuration SET NextId = ?", {days * kMinutesPerDay});
    core::MarkAsSample(core::App().DbPath);
}

/// The history of the sample's runs. Its file is deleted again unless the sample is kept.
class SampleHistory {
  public:
    /// Replaces a history that former books have left behind.
    explicit SampleHistory(std::filesystem::path file) : file_(std::move(file)) { Remove(); }
    ~SampleHistory() {
        if (!kept_) Remove();
    }
    SampleHistory(const SampleHistory&) = delete;
    SampleHistory& operator=(const SampleHistory&) = delete;

    const std::filesystem::path& File() const { return file_; }
    void Keep() { kept_ = true; }

  private:
    void Remove() const {
        std::error_code ignored;
        std::filesystem::remove(file_, ignored);
    }

    std::filesystem::path file_;
    bool kept_ = false;
};

/// Runs the program once, after which the landlord waives the last late fee that it charged.
void RunOnce(const SampleHistory& history) {
    RunDigest digest;
    RunRecorder recorder(history.File(), digest);
    core::UpdateRecords(recorder);
    const auto& rows = digest.Rows();
    const auto fee = std::find_if(rows.rbegin(), rows.rend(), [](const DigestRow& row) {
        return row.reason.posting == core::Posting::OneTimeFee &&
               core::Exists(
                   "SELECT IdRentLog FROM RentLog WHERE (IdRentLog = ?) AND "
                   "(IdTransaction = 0)",
                   {row.rowId});
    });
    if (fee != rows.rend()) TakeBack(std::span(&*fee, 1));
}

void LiveThrough(const store::SampleCast& cast, Date today, const SampleHistory& history,
                 const SampleProgress& progress) {
    std::vector<SampleTenant> tenants(cast.leases.begin(), cast.leases.end());
    std::vector<SampleBorrower> borrowers(cast.loans.begin(), cast.loans.end());
    const SampleExpenses expenses;
    SampleCredits credits(cast.leases, today);
    const int days = today.Serial() - cast.begins.Serial() + 1;
    for (Date day = cast.begins; day <= today; day = DateAdd(Interval::Day, 1, day)) {
        platform::SetToday(day);
        platform::UnitOfWork unit(core::App().Connection);
        for (SampleTenant& tenant : tenants)
            tenant.LiveThrough(day);
        credits.LiveThrough(day);
        for (SampleBorrower& borrower : borrowers)
            borrower.LiveThrough(day);
        expenses.Pay(day);
        unit.Commit();
        if (progress) progress(day.Serial() - cast.begins.Serial() + 1, days);
    }
    // The automated events are switched on last, so that they don't run during the simulated years.
    core::Execute("UPDATE AutoEvent SET Enabled = True");
    RunOnce(history);
    platform::UnitOfWork unit(core::App().Connection);
    for (const SampleBorrower& borrower : borrowers)
        borrower.NoteEquity();
    unit.Commit();
}

} // namespace

void MakeSamplePortfolio(const std::filesystem::path& folder, int units, Date today,
                         const SampleProgress& progress) {
    store::NewDatabase database(folder);
    core::App().DbPath = platform::AddBackslash(folder.string());
    core::App().DbFile = core::App().DbPath + std::string(store::kDatabaseFile);
    platform::SetToday(today);
    SampleHistory history(HistoryFileOf(core::App().DbFile));
    {
        const OpenSession session(database.Draft());
        MakeSettings(OpenSession::Session(), today);
        const store::SampleCast cast =
            store::WriteSampleRecords(OpenSession::Session(), {units, today, core::NextId});
        core::LoadConfiguration();
        LiveThrough(cast, today, history, progress);
        // Comes last, so that the other rows have the same ids with and without templates.
        documents::InstallShippedDocs();
        documents::AddShippedDocs(documents::ShippedDocsFolder());
    }
    database.Publish();
    history.Keep();
}

} // namespace shell
