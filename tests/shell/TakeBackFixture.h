#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <span>
#include <stdexcept>

#include <fmt/core.h>

#include "core/CoreFixture.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "shell/Registrations.h"
#include "shell/RunHistory.h"
#include "shell/SampleLife.h"
#include "shell/TakeBack.h"
#include "support/Books.h"

namespace tests {

inline const platform::Date kMade(2026, 11, 21);

/// A sample portfolio, made once; each test has a copy of it to itself, in which nothing was taken
/// back yet.
class TakingBack : public CoreProcess {
  protected:
    static void SetUpTestSuite() {
        sample_ = new support::TemporaryFolder;
        shell::RegisterLogic();
        constexpr int kUnits = 10;
        shell::MakeSamplePortfolio(*sample_ / "books", kUnits, kMade);
    }
    static void TearDownTestSuite() { delete sample_; }

    TakingBack() {
        shell::RegisterLogic();
        OpenFresh();
    }

    /// The session on the sample as it was made, with late fees for every lease.
    void OpenFresh() {
        platform::SetToday(kMade);
        core::App().Connection.Close();
        std::filesystem::remove_all(Folder() / "books");
        std::filesystem::copy(*sample_ / "books", Folder() / "books");
        core::App().Connection.Open(Folder() / "books" / "Vestrel.mdb");
        std::filesystem::remove(shell::HistoryFile(core::App().Connection));
        core::Execute("DELETE * FROM TakenBack");
        // Rows that are settled on their day can't be taken back.
        core::Execute("DELETE * FROM LeaseCredit");
        core::Execute(
            "UPDATE Lease SET OneTimeFee = 77, OneTimeDays = 5, DailyFee = 3, DailyDays = 50");
        core::Execute("UPDATE AutoEvent SET Alert = True");
        core::Execute("UPDATE Mortgage SET LateFee = 45, GracePeriod = 15, PMI = 31.5");
    }

    /// Brings the books to a day as the window does.
    static shell::RunDigest RunTo(platform::Date day) {
        platform::SetToday(day);
        shell::RunDigest digest;
        shell::RunAndRecord(digest);
        return digest;
    }
    /// The first row of this kind, posted by a run of the next two months.
    static shell::DigestRow RunAndFind(core::Posting posting) {
        const shell::RunDigest digest =
            RunTo(platform::DateAdd(platform::Interval::Month, 2, kMade));
        for (const shell::DigestRow& row : digest.Rows()) {
            if (row.reason.posting == posting) return row;
        }
        throw std::runtime_error("no such row");
    }
    static void Take(const shell::DigestRow& row) { shell::TakeBack(std::span(&row, 1)); }
    static int Post(const shell::DigestRow& row) { return shell::PostAgain(std::span(&row, 1)); }
    /// Every row of the books, whatever its place in its table.
    static std::vector<std::string> Books() {
        std::vector<std::string> lines = support::Dump(core::App().Connection);
        std::ranges::sort(lines);
        return lines;
    }
    static std::vector<std::string> ChangedSince(const std::vector<std::string>& before) {
        std::vector<std::string> changed;
        std::ranges::set_symmetric_difference(before, Books(), std::back_inserter(changed));
        return changed;
    }
    /// Why a row can't be taken back or posted again; the books stay as they are.
    template <class Work>
    static std::string Refused(const Work& work) {
        const std::vector<std::string> before = Books();
        std::string reason = "not refused";
        try {
            work();
        } catch (const platform::Error& refused) {
            reason = refused.what();
        }
        EXPECT_THAT(ChangedSince(before), testing::IsEmpty());
        return reason;
    }
    static std::string Ask(const std::string& sql) {
        return support::Ask(core::App().Connection, sql);
    }
    static std::vector<std::string> Rows(const std::string& sql) {
        return support::Rows(core::App().Connection, sql);
    }

    inline static support::TemporaryFolder* sample_ = nullptr;
};

/// A row without its id; an event's is known by its category and amount.
inline std::string LineOf(const shell::DigestRow& row) {
    return fmt::format("{}|{}|{}|{}|{}", core::KindNumber(row.recordKind),
                       row.recordKind == core::kAutoEvent ? 0 : row.recordId, row.date.ToText(),
                       row.category, platform::MoneyToText(row.amount));
}

} // namespace tests
