#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "mortgages/ChargeEditor.h"
#include "mortgages/LogRows.h"
#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/mMortgage.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "support/Rival.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using mortgages::ChargeChoice;
using mortgages::MortgagePayment;
using platform::Date;
using support::Rival;
using testing::ElementsAre;
using testing::HasSubstr;

/// Everything that a payment, a run or a charge writes.
std::vector<std::string> Books() {
    std::vector<std::string> books;
    for (const char* select :
         {"SELECT * FROM Mortgage", "SELECT * FROM MortgageLog ORDER BY IdMortgageLog",
          "SELECT * FROM Transactions ORDER BY IdTransaction"}) {
        for (std::string& row : Rows(select))
            books.push_back(std::move(row));
    }
    return books;
}

MortgagePayment AllOpen() {
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    SelectAll(payment, ChargeChoice::All, true);
    return payment;
}

void PayAll() {
    SubmitMortgagePayment(AllOpen());
}

/// The reason why the work was refused; empty if it was done.
std::string Refusal(const std::function<void()>& work) {
    try {
        work();
    } catch (const platform::ConflictError& error) {
        return error.what();
    }
    return {};
}

class TwoProgramsOnAMortgage : public testing::Test {
  protected:
    TwoProgramsOnAMortgage() {
        SetMortgageField("EscrowAmount", "250");
        RunMortgagesOn(Date(2024, 2, 20));
    }

    /// Does `rival` in the other program between what `prepare` read and what `work` writes; the
    /// work must be refused for this reason and change nothing.
    static void ExpectRefused(const std::function<void()>& rival, const std::function<void()>& work,
                              const std::string& reason) {
        const Rival other(rival);
        std::vector<std::string> before;
        EXPECT_THAT(Refusal([&] {
                        try {
                            work();
                        } catch (...) {
                            before = Books();
                            throw;
                        }
                    }),
                    HasSubstr(reason));
        EXPECT_TRUE(other.HasWorked());
        EXPECT_EQ(Books(), before);
    }

    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_{folder_.Path() / "db"};
};

TEST_F(TwoProgramsOnAMortgage, PayAChargeOnce) {
    ExpectRefused(PayAll, PayAll, "already been paid");
    EXPECT_THAT(Rows("SELECT Count(*), Sum(Amount) FROM Transactions"), ElementsAre("1|1699.101"));
    EXPECT_THAT(Rows("SELECT CurrentPeriod, NextDue FROM Mortgage"), ElementsAre("3|03/15/2024"));
}

TEST_F(TwoProgramsOnAMortgage, RefuseToPayWhatWasChangedOrDeleted) {
    const auto change = [](const char* sql) {
        return [sql] { core::App().Connection.Execute(sql); };
    };
    ExpectRefused(change("UPDATE MortgageLog SET Other = 300, Total = 300 WHERE Flags = 8"), PayAll,
                  "changed");
    ExpectRefused(change("DELETE * FROM MortgageLog WHERE Flags = 8"), PayAll, "deleted");
    ExpectRefused(change("DELETE * FROM Mortgage"), PayAll, "deleted");
    EXPECT_THAT(Rows("SELECT * FROM Transactions"), testing::IsEmpty());
}

TEST_F(TwoProgramsOnAMortgage, LeaveWhatTheOtherOnePaidAlone) {
    const auto pay = [](std::size_t charge) {
        return [charge] {
            MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
            Select(payment, charge, true);
            SubmitMortgagePayment(payment);
        };
    };
    const Rival other(pay(0)); // the base payment, and here its escrow
    pay(1)();
    EXPECT_THAT(Rows("SELECT Period, Flags, IdTransaction <> 0 FROM MortgageLog WHERE Flags <> 2 "
                     "ORDER BY IdMortgageLog"),
                ElementsAre("1|1|True", "1|8|True", "2|1|False", "2|8|False"));
    EXPECT_THAT(Rows("SELECT CurrentPeriod FROM Mortgage"), ElementsAre("2"));
}

TEST_F(TwoProgramsOnAMortgage, RefuseAnEditOfAPaymentThatWasEditedSince) {
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    Select(payment, 0, true);
    const std::int32_t id = SubmitMortgagePayment(payment);
    const auto edit = [id](std::size_t charge, bool on) {
        MortgagePayment edited = mortgages::ReadMortgagePayment(id);
        Select(edited, charge, on);
        SubmitMortgagePayment(edited);
    };
    const MortgagePayment stale = mortgages::ReadMortgagePayment(id);
    const auto last = stale.charges.size() - 1;
    ASSERT_FALSE(stale.charges[last].selected);
    ExpectRefused([&] { edit(last, true); }, [&] { SubmitMortgagePayment(stale); }, "changed");
    const MortgagePayment both = mortgages::ReadMortgagePayment(id);
    ExpectRefused([&] { edit(last, false); }, [&] { SubmitMortgagePayment(both); }, "changed");
}

TEST_F(TwoProgramsOnAMortgage, WriteOneRowForAPaymentWhoseRowWasLost) {
    PayAll();
    const auto paymentRows = [] {
        return Rows("SELECT Count(*), Sum(Total) FROM MortgageLog WHERE Flags = 2");
    };
    const std::vector<std::string> one = paymentRows();
    const std::int32_t id = std::stoi(Rows("SELECT IdTransaction FROM Transactions")[0]);
    const auto edit = [id] { SubmitMortgagePayment(mortgages::ReadMortgagePayment(id)); };
    const auto loseRow = [] {
        core::App().Connection.Execute("DELETE * FROM MortgageLog WHERE Flags = 2");
    };
    loseRow();
    MortgagePayment withoutRow = mortgages::ReadMortgagePayment(id);
    {
        const Rival other(edit);
        SubmitMortgagePayment(withoutRow);
        EXPECT_TRUE(other.HasWorked());
    }
    EXPECT_EQ(paymentRows(), one);

    const MortgagePayment withFormerRow = mortgages::ReadMortgagePayment(id);
    {
        const Rival other([&] {
            loseRow();
            edit();
        });
        SubmitMortgagePayment(withFormerRow);
        EXPECT_TRUE(other.HasWorked());
    }
    EXPECT_EQ(paymentRows(), one);

    loseRow();
    mortgages::ReadCharges(withoutRow);
    EXPECT_EQ(withoutRow.idPaymentRow, 0);
}

TEST_F(TwoProgramsOnAMortgage, DoNotBringADeletedPaymentBack) {
    PayAll();
    const MortgagePayment stored = mortgages::ReadMortgagePayment(
        std::stoi(Rows("SELECT IdTransaction FROM Transactions")[0]));
    ExpectRefused(
        [] {
            core::App().Connection.Execute("DELETE * FROM Transactions");
            core::App().Connection.Execute("DELETE * FROM MortgageLog WHERE Flags = 2");
            core::App().Connection.Execute("UPDATE MortgageLog SET IdTransaction = 0");
        },
        [&] { SubmitMortgagePayment(stored); }, "deleted");
}

TEST_F(TwoProgramsOnAMortgage, KeepAPaidChargePaidWhenItIsEditedOrDeleted) {
    const std::int32_t id =
        std::stoi(Rows("SELECT IdMortgageLog FROM MortgageLog "
                       "WHERE Flags = 8 AND Period = 1")[0]);
    mortgages::MortgageLogEntry read;
    ASSERT_TRUE(mortgages::ReadCharge(id, read));
    mortgages::MortgageLogEntry edited = read;
    edited.description = "March";
    ExpectRefused(
        PayAll, [&] { mortgages::SaveCharge(edited, read, id); }, "paid");

    const std::vector<mortgages::ShownCharge> shown = {{id, 0}, {id + 1, 0}};
    const support::ScriptedDialogs user({true});
    EXPECT_THAT(Refusal([&] { mortgages::DeleteLogRows(shown, "Delete all selected items?"); }),
                HasSubstr("paid"));
    EXPECT_EQ(Rows("SELECT * FROM MortgageLog WHERE IdMortgageLog = " + std::to_string(id)).size(),
              1U);
}

TEST_F(TwoProgramsOnAMortgage, ChargeNothingToADeletedMortgage) {
    const mortgages::MortgageLogEntry charge = mortgages::NewCharge(kMortgageId);
    ExpectRefused([] { core::App().Connection.Execute("DELETE * FROM Mortgage"); },
                  [&] { mortgages::SaveCharge(charge, charge, 0); }, "deleted");
}

TEST_F(TwoProgramsOnAMortgage, ChargeADayOnce) {
    for (const auto mode : {mortgages::RunMode::CatchUp, mortgages::RunMode::RollForward}) {
        platform::SetToday(Date(2024, 3, 20));
        const auto run = [mode] { mortgages::UpdateMortgageById(kMortgageId, mode); };
        const Rival other(run);
        run();
        EXPECT_TRUE(other.HasWorked());
        EXPECT_EQ(Log().size(), 6U); // base and escrow, three times
    }
    const Rival other([] { RunMortgagesOn(Date(2024, 4, 20)); });
    RunMortgagesOn(Date(2024, 4, 20));
    EXPECT_EQ(Log().size(), 8U);
}

} // namespace

} // namespace tests
