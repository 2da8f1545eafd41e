// Charges that the daily run settles from credit.

#include <random>
#include <string>
#include <vector>

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "leases/AmountPayment.h"
#include "leases/BooksTest.h"
#include "leases/CreditChecks.h"
#include "leases/Credits.h"
#include "leases/LeaseEditor.h"
#include "leases/ReturnPayment.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"
#include "removal/DeleteRecord.h"
#include "store/CreateDatabase.h"
#include "support/Dump.h"
#include "support/ScriptedDialogs.h"

namespace tests {

namespace {

using leases::RentFlags;
using leases::TransactionClass;
using leases::WalkMode;
using platform::Currency;
using platform::Date;

class CreditWalk : public BooksTest {
  protected:
    /// Empties the ledger and puts the lease back to where it began.
    static void Restart() {
        for (const char* const table : {"RentLog", "Transactions", "RentCredit", "LeaseCredit"})
            Run(std::string("DELETE * FROM ") + table);
        SetLeaseField("DateNextDue", "01/01/2024");
        leases::StoreBalances(kLeaseId);
    }
    static std::int32_t LastTransaction() {
        return std::stoi(Ask("SELECT Max(IdTransaction) FROM Transactions"));
    }
    /// A payment of this many units for all that is open.
    static leases::AmountPayment Amount(int units,
                                        TransactionClass rentClass = TransactionClass::Rent) {
        return {leases::ProposePayment(kLeaseId, rentClass), Currency::FromUnits(units)};
    }
    static void Start(Date day) {
        platform::SetToday(day);
        leases::UpdateLeaseById(kLeaseId, WalkMode::CatchUp);
    }
    /// Starts the program on each day up to `last`, or only on that one.
    static void Live(Date last, bool daily) {
        while (daily && platform::Today() < last)
            Start(DateAdd(platform::Interval::Day, 1, platform::Today()));
        Start(last);
    }
    /// Everything but the tables of credits, which books of earlier versions don't have.
    static Lines OldTables() {
        Lines lines;
        for (const std::string& line : support::Dump()) {
            if (!line.starts_with("RentCredit:") && !line.starts_with("LeaseCredit:"))
                lines.push_back(line);
        }
        return lines;
    }
};

TEST_F(CreditWalk, ComesToTheSameDayByDayAndAfterAClosedMonth) {
    struct Case {
        const char* name;
        int credit;
        const char* termType;
        const char* due;
        Date last;
        const char* nextDue;
        const char* rentDue;
        std::int64_t payments;
    };
    for (
        const Case& c : std::vector<Case>{
            {"more than falls due",
             5000,
             "Month(s)",
             "04/01/2024",
             {2024, 5, 10},
             "06/01/2024",
             "-3000",
             2},
            {"just enough", 2000, "Month(s)", "04/01/2024", {2024, 5, 10}, "06/01/2024", "0", 2},
            // The rest of April keeps the due date, and the fees come after all.
            {"less than the rent",
             300,
             "Month(s)",
             "04/01/2024",
             {2024, 4, 20},
             "04/01/2024",
             "780",
             1},
            {"less than the second",
             1500,
             "Month(s)",
             "04/01/2024",
             {2024, 5, 3},
             "05/01/2024",
             "500",
             2},
            {"month ends", 9000, "Month(s)", "03/31/2024", {2024, 6, 30}, "07/30/2024", "-5000", 4},
            {"the end of the year",
             30000,
             "Month(s)",
             "04/01/2024",
             {2025, 1, 2},
             "02/01/2025",
             "-20000",
             10},
            {"a leap day", 3000, "Month(s)", "04/29/2024", {2024, 6, 28}, "06/29/2024", "-1000", 2},
            {"weeks", 3000, "WTW", "03/06/2024", {2024, 3, 21}, "03/27/2024", "0", 3},
            {"a credit of a day to come",
             -1000,
             "Month(s)",
             "03/06/2024",
             {2024, 3, 8},
             "03/06/2024",
             "0",
             0},
        }) {
        Lines daily;
        for (const bool isDaily : {true, false}) {
            SCOPED_TRACE(fmt::format("{} {}", c.name, isDaily ? "daily" : "closed"));
            Restart();
            platform::SetToday(Date(2024, 3, 5));
            Run("UPDATE Configuration SET NextId = 5000");
            SetLeaseField("DateUpdated", "03/05/2024");
            SetLeaseField("TermType", c.termType);
            SetLeaseField("DateNextDue", c.due);
            SetLeaseField("Status", "MTM");
            SetLeaseField("OneTimeFee", "80");
            SetLeaseField("Option", "True");
            SetLeaseField("OptionCredit", "12.25");
            leases::SetSettlesCharges(kLeaseId, true);
            if (c.credit < 0) {
                Charge(Date(2024, 4, 1), c.credit);
            } else {
                leases::SubmitAmount(Amount(c.credit));
            }
            Live(c.last, isDaily);
            EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), c.nextDue);
            EXPECT_EQ(Ask("SELECT RentDue FROM Lease"), c.rentDue);
            EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE Amount = 0"),
                      std::to_string(c.payments));
            EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE Amount = 0 AND "
                          "(DateEffective = '03/05/2024' OR Class <> 1 OR CreditId <> 105)"),
                      "0");
            if (c.credit > 0) ExpectBalanced();
            if (isDaily) {
                daily = support::Dump();
            } else {
                EXPECT_EQ(support::Dump(), daily);
            }
        }
    }
}

TEST_F(CreditWalk, LeavesAYearWithoutCreditsAsItWas) {
    const auto year = [](bool withTables) {
        Restart();
        if (!withTables) {
            core::App().Connection.RunScript("DROP TABLE RentCredit; DROP TABLE LeaseCredit;");
        }
        platform::SetToday(Date(2024, 1, 1));
        Run("UPDATE Configuration SET NextId = 5000");
        SetLeaseField("DateUpdated", "12/31/2023");
        SetLeaseField("OneTimeFee", "25");
        SetLeaseField("DailyFee", "2");
        SetLeaseField("Subs", "True");
        SetLeaseField("SubsAmt", "100");
        for (int day = 1; day <= 366; ++day) {
            Start(DateAdd(platform::Interval::Day, 1, platform::Today()));
            if (day % 45 == 0) {
                leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Rent));
                leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Subsidy));
            }
            if (day % 90 == 0) {
                const support::ScriptedDialogs dialogs({day % 180 == 0});
                removal::DeleteRecord(core::kTransaction, LastTransaction(),
                                      removal::Confirm::DontAsk);
            }
        }
        return OldTables();
    };
    const Lines with = year(true);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentCredit"), "0");
    EXPECT_EQ(year(false), with);
    EXPECT_GT(with.size(), 60U);
    // Books of an earlier version get the tables, and keep their rows.
    store::AddMissingTables(core::App().Connection);
    store::AddMissingTables(core::App().Connection);
    EXPECT_EQ(support::Dump(), with);
    leases::SubmitAmount(Amount(5000));
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentCredit"), "1");
}

/// A year of payments by amount, returns, edits and deletions at random; the sums hold after each.
TEST_F(CreditWalk, KeepsTheSumsThroughYearsOfEverything) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        SCOPED_TRACE(seed);
        std::mt19937 engine(seed);
        const auto pick = [&](int below) {
            return static_cast<int>(engine() % static_cast<unsigned>(below));
        };
        Restart();
        platform::SetToday(Date(2024, 1, 1));
        SetLeaseField("DateUpdated", "12/31/2023");
        SetLeaseField("OneTimeFee", "25");
        SetLeaseField("Subs", "True");
        SetLeaseField("SubsAmt", "100");
        leases::SetSettlesCharges(kLeaseId, seed != 2);
        int returns = 0;
        for (int day = 0; day < 400 && !HasFailure(); ++day) {
            Start(DateAdd(platform::Interval::Day, 1, platform::Today()));
            const auto rentClass = TransactionClass{static_cast<std::int16_t>(1 + pick(2))};
            const std::int32_t last =
                Ask("SELECT Count(*) FROM Transactions") == "0" ? 0 : LastTransaction();
            switch (pick(30)) {
                case 0:
                case 1:
                    leases::SubmitAmount(Amount(1 + pick(2500), rentClass));
                    break;
                case 2:
                    leases::SubmitPayment(leases::ProposePayment(kLeaseId, rentClass));
                    break;
                case 3:
                    try {
                        leases::SubmitReturn(leases::ProposeReturn(last));
                        ++returns;
                    } catch (const platform::DatabaseError&) {
                        throw;
                    } catch (const platform::Error&) {
                        // The last transaction was none that can be returned.
                    }
                    break;
                case 4: {
                    const support::ScriptedDialogs dialogs({false});
                    removal::DeleteRecord(core::kTransaction, last, removal::Confirm::DontAsk);
                    break;
                }
                default:
                    continue;
            }
            ExpectBalanced();
        }
        EXPECT_GT(returns, 2);
        EXPECT_EQ(Ask("SELECT Count(*) FROM RentCredit AS c LEFT JOIN RentLog AS r ON c.IdRentLog "
                      "= r.IdRentLog WHERE r.IdRentLog IS NULL"),
                  "0");
    }
}

} // namespace

} // namespace tests
