// A charge is edited or deleted, or added by hand, while another program pays it or deletes the
// mortgage.

#include <functional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "mortgages/ChargeEditor.h"
#include "mortgages/LogRows.h"
#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgagePayment.h"
#include "platform/values/Errors.h"
#include "support/Dump.h"
#include "support/Rival.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using mortgages::ChargeChoice;
using mortgages::MortgagePayment;
using platform::Date;
using support::Rival;
using testing::HasSubstr;

void PayAll() {
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    SelectAll(payment, ChargeChoice::All, true);
    SubmitMortgagePayment(payment);
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

class ChargedElsewhere : public testing::Test {
  protected:
    ChargedElsewhere() {
        SetMortgageField("EscrowAmount", "250");
        RunMortgagesOn(Date(2024, 2, 20));
    }

    /// Does `rival` in the other program between what was read and what `work` writes; the work
    /// must be refused for this reason and change nothing.
    static void ExpectRefused(const std::function<void()>& rival, const std::function<void()>& work,
                              const std::string& reason) {
        const Rival other(rival);
        EXPECT_THAT(Refusal(work), HasSubstr(reason));
        EXPECT_TRUE(other.HasWorked());
        EXPECT_EQ(support::Dump(), other.BooksAfterwards());
    }

    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_{folder_.Path() / "db"};
};

TEST_F(ChargedElsewhere, APaidChargeIsNeitherEditedNorDeleted) {
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

TEST_F(ChargedElsewhere, ADeletedMortgageIsChargedNothing) {
    const mortgages::MortgageLogEntry charge = mortgages::NewCharge(kMortgageId);
    ExpectRefused([] { core::App().Connection.Execute("DELETE * FROM Mortgage"); },
                  [&] { mortgages::SaveCharge(charge, charge, 0); }, "deleted");
}

} // namespace

} // namespace tests
