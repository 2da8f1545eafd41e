#include "leases/LeaseRun.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Globals.h"
#include "leases/LeaseFixture.h"
#include "leases/RentLog.h"
#include "leases/mLease.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using leases::WalkMode;
using platform::Currency;
using platform::CursorMode;
using platform::Date;
using platform::Recordset;

struct Heard : core::RunListener {
    void Posted(int, std::int32_t, std::string_view description,
                const std::vector<core::PostedRow>& rows) override {
        for (const core::PostedRow& row : rows) {
            posted.push_back(std::string(description) + " " + row.date.ToText());
        }
    }
    void Failed(int, std::int32_t, std::string_view description, std::string_view reason) override {
        failed.push_back(std::string(description) + ": " + std::string(reason));
    }

    std::vector<std::string> posted;
    std::vector<std::string> failed;
};

class LeaseRun : public testing::Test {
  protected:
    LeaseRun() : books_(folder_.Path() / "db") { platform::SetToday(Date(2024, 2, 10)); }

    static std::int64_t Count(std::string_view sql) {
        return core::App().Connection.Scalar(sql)->AsLong();
    }

    support::TemporaryFolder folder_;
    BooksWithOneLease books_;
};

TEST_F(LeaseRun, TellsWhatItPostedAndForWhom) {
    Heard heard;
    leases::UpdateLeases(heard);
    const std::vector<std::string> expected = {"O'Brien, 12 Elm Street A 01/01/2024",
                                               "O'Brien, 12 Elm Street A 02/01/2024"};
    EXPECT_EQ(heard.posted, expected);
    EXPECT_TRUE(heard.failed.empty());
}

struct Damage {
    const char* field;
    const char* value;
    const char* named;
};

class DamagedLease : public LeaseRun, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedLease, IsNamedAndLeftAloneWhileTheOthersGoOn) {
    core::App().Connection.Execute(
        "INSERT INTO Lease (IdLease, IdTenant, IdUnit, Status, DateActive, DateRenewed, "
        "DateNextDue, "
        "DateUpdated, Term, TermType, ExpireOption, Rent, DiscountDays, OneTimeDays, OneTimeFee, "
        "DailyDays, DailyFee) VALUES (201, 103, 102, 'Contracted', '01/01/2023', '01/01/2024', "
        "'01/01/2024', '12/31/2023', 12, 'Month(s)', 'MTM', 700, 5, 5, 10, 40, 0)");
    SetLeaseField(GetParam().field, GetParam().value);

    Heard heard;
    leases::UpdateLeases(heard);
    ASSERT_EQ(heard.failed.size(), 1U);
    EXPECT_NE(heard.failed[0].find("O'Brien, 12 Elm Street A"), std::string::npos);
    EXPECT_NE(heard.failed[0].find(GetParam().named), std::string::npos) << heard.failed[0];
    EXPECT_EQ(Count("SELECT Count(*) FROM RentLog WHERE IdLease = 101"), 0);
    EXPECT_EQ(Count("SELECT Count(*) FROM RentLog WHERE IdLease = 201"), 4);
}

INSTANTIATE_TEST_SUITE_P(Fields, DamagedLease,
                         testing::Values(Damage{"DateNextDue", "", "DateNextDue"},
                                         Damage{"DateNextDue", "NULL", "DateNextDue"},
                                         Damage{"DateRenewed", "02/30/2024", "02/30/2024"},
                                         Damage{"DateUpdated", "yesterday", "yesterday"},
                                         Damage{"OneTimeFee", "NULL", "OneTimeFee"},
                                         Damage{"DailyDays", "NULL", "DailyDays"},
                                         Damage{"Rent", "NULL", "Rent"}));

TEST_F(LeaseRun, NeedsNoFeeThatNeverFallsDue) {
    SetLeaseField("DailyFee", "NULL");
    SetLeaseField("DailyDays", "90");
    SetLeaseField("SubsAmt", "NULL");
    Heard heard;
    leases::UpdateLeases(heard);
    EXPECT_EQ(heard.posted.size(), 2U);
    EXPECT_TRUE(heard.failed.empty());
}

TEST_F(LeaseRun, SumsTheLedgerIntoTheBalances) {
    struct Entry {
        core::TransactionClass rentClass;
        leases::RentFlags flags;
        int amount;
        std::int32_t idTransaction;
    };
    using core::TransactionClass;
    using leases::RentFlags;
    for (const Entry& entry : std::initializer_list<Entry>{
             {TransactionClass::Rent, RentFlags::PeriodRent, 900, 0},
             {TransactionClass::Rent, RentFlags::Ordinary, -40, 0},
             {TransactionClass::Rent, RentFlags::PeriodRent, 900, 7},
             {TransactionClass::Rent, RentFlags::Payment, -900, 7},
             {TransactionClass::Subsidy, RentFlags::Ordinary, 300, 0},
             {TransactionClass::Deposit, RentFlags::Ordinary, 500, 0},
             {TransactionClass::Deposit, RentFlags::Ordinary, 250, 8},
             {TransactionClass::Deposit, RentFlags::Payment, -250, 8},
             {TransactionClass::Deposit, RentFlags::DepositRefund, 100, 9},
             {TransactionClass::OptionCredit, RentFlags::Ordinary, 25, 7}}) {
        leases::WriteRentLog({.idLease = kLeaseId,
                              .idTransaction = entry.idTransaction,
                              .datePosted = Date(2024, 1, 1),
                              .rentClass = entry.rentClass,
                              .category = "x",
                              .amount = Currency::FromUnits(entry.amount),
                              .description = "x",
                              .flags = entry.flags});
    }
    for (const char* flagsAndAmount : {"3, 100", "4, 200", "0, 999"}) {
        core::App().Connection.Execute(
            std::string(
                "INSERT INTO Transactions (IdLease, Class, Flags, Amount) VALUES (101, 3, ") +
            flagsAndAmount + ")");
    }
    Recordset lease;
    lease.Open(core::App().Connection, "SELECT * FROM Lease", CursorMode::Updatable);
    leases::SetLeaseBalances(lease);

    struct Balance {
        const char* field;
        int units;
    };
    for (const auto& [field, units] :
         {Balance{"RentDue", 860}, Balance{"SubsDue", 300}, Balance{"OptionBalance", 25},
          Balance{"DepositTotal", 750}, Balance{"DepositPaid", 250}, Balance{"DepositDue", 500},
          Balance{"DepositRefunded", 100}, Balance{"DepositCharged", 200},
          Balance{"DepositBalance", -50}}) {
        EXPECT_EQ(lease[field].AsCurrency(), Currency::FromUnits(units)) << field;
    }
}

TEST_F(LeaseRun, WritesNoRowOfZeroAndRewritesTheRowItIsGiven) {
    leases::RentLogEntry entry;
    entry.idLease = kLeaseId;
    entry.datePosted = Date(2024, 1, 1);
    EXPECT_EQ(leases::WriteRentLog(entry), 0);
    EXPECT_EQ(leases::WriteRentLog(entry, 55), 55);
    EXPECT_EQ(Count("SELECT Count(*) FROM RentLog"), 0);

    entry.amount = Currency::FromUnits(10);
    const std::int32_t id = leases::WriteRentLog(entry);
    entry.amount = Currency::FromUnits(20);
    EXPECT_EQ(leases::WriteRentLog(entry, id), id);
    EXPECT_NE(leases::WriteRentLog(entry, 4711), 4711) << "a deleted row is written again";
    EXPECT_EQ(Count("SELECT Count(*) FROM RentLog WHERE Amount = 20"), 2);
}

struct Lateness {
    const char* nextDue;
    const char* status;
    const char* expected;
};

TEST_F(LeaseRun, NamesHowLateTheRentIs) {
    // Late from 6 days on, a warning past 30, eviction past 60.
    SetLeaseField("RentStatus", "before");
    Recordset lease;
    for (const Lateness& row : {Lateness{"02/11/2024", "MTM", "OK"},
                                {"02/10/2024", "MTM", "Due"},
                                {"02/05/2024", "MTM", "Due"},
                                {"02/04/2024", "MTM", "Late"},
                                {"01/11/2024", "MTM", "Late"},
                                {"01/10/2024", "MTM", "Warning"},
                                {"12/11/2023", "Notice", "Eviction"},
                                {"12/11/2023", "Broken", "n/a"},
                                {"12/11/1903", "Expired", "before"},
                                {"", "MTM", "before"}}) {
        lease.Open(core::App().Connection, "SELECT * FROM Lease", CursorMode::Updatable);
        lease["DateNextDue"].Set(row.nextDue);
        lease["Status"].Set(row.status);
        leases::SetRentStatus(lease);
        EXPECT_EQ(lease["RentStatus"].AsText(), row.expected) << row.nextDue << " " << row.status;
        lease.Close();
    }
}

} // namespace

} // namespace tests
