// A process killed in the middle of a routine leaves the books as before it or as after it.

#include <gtest/gtest.h>

#include "core/Globals.h"
#include "leases/Crashes.h"
#include "leases/LeaseFixture.h"
#include "leases/RentPayment.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using leases::RentClass;
using leases::RentPayment;
using platform::Date;

class Crash : public testing::Test {
  protected:
    Crash() : books_(folder_.Path() / "db") {
        SetLeaseField("Option", "True");
        SetLeaseField("OptionCredit", "25");
        SetLeaseField("DailyFee", "3");
        platform::SetToday(Date(2024, 2, 14));
        leases::UpdateLeaseById(kLeaseId, leases::WalkMode::CatchUp);
    }

    static void ExpectWhole(const Crashes& crashes, int atLeast) {
        EXPECT_EQ(crashes.faults, std::vector<std::string>());
        EXPECT_GE(crashes.statements, atLeast);
        EXPECT_GT(crashes.asBefore, 0);
        EXPECT_EQ(crashes.asBefore + crashes.asAfter, crashes.statements);
    }

    support::TemporaryFolder folder_;
    BooksWithOneLease books_;
};

TEST_F(Crash, APaymentIsNeverHalf) {
    ExpectWhole(CrashAtEveryStatement([] {
                    leases::SubmitPayment(leases::ProposePayment(kLeaseId, RentClass::Rent));
                }),
                20);
}

TEST_F(Crash, AnEditedPaymentIsNeverHalf) {
    const auto id = leases::SubmitPayment(leases::ProposePayment(kLeaseId, RentClass::Rent));
    ExpectWhole(CrashAtEveryStatement([id] {
                    RentPayment payment = leases::ReadPayment(id);
                    payment.charges.front().selected = false;
                    payment.checkNumber = "17";
                    leases::SubmitPayment(payment);
                }),
                10);
}

TEST_F(Crash, ACatchUpRunIsNeverHalf) {
    ExpectWhole(CrashAtEveryStatement([] {
                    platform::SetToday(Date(2024, 4, 2));
                    leases::UpdateLeaseById(kLeaseId, leases::WalkMode::CatchUp);
                }),
                10);
}

TEST_F(Crash, WorkWithoutAUnitIsFoundHalfDone) {
    const Crashes crashes = CrashAtEveryStatement([] {
        core::App().Connection.Execute("UPDATE Unit SET Status = 'Hold'");
        core::App().Connection.Execute("UPDATE Tenant SET Status = 'Archived'");
    });
    EXPECT_EQ(crashes.faults, std::vector<std::string>{"half done before statement 2"});
}

} // namespace

} // namespace tests
