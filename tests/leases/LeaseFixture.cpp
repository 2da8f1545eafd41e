#include "leases/LeaseFixture.h"

#include "core/Globals.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "store/CreateDatabase.h"
#include "support/CopyBooks.h"

namespace tests {

namespace {

constexpr std::string_view kRecords[] = {
    "INSERT INTO Configuration (CompanyName, NextId) VALUES ('Test', 1000)",
    "INSERT INTO Building (IdBuilding, Address) VALUES (104, '12 Elm Street')",
    "INSERT INTO Unit (IdUnit, IdBuilding, Unit, Status, Rent) VALUES (102, 104, 'A', 'Hold', "
    "1000)",
    "INSERT INTO Tenant (IdTenant, LastName, FirstName, Status) "
    "VALUES (103, 'O''Brien', 'Ann', 'Approved')",
    "INSERT INTO Account (IdAccount, ShowAs, AccountType) VALUES (105, 'First Bank', 'Bank')",
    "INSERT INTO Account (IdAccount, ShowAs, AccountType) VALUES (106, 'Housing Aid', 'Other')",
    "INSERT INTO Lease (IdLease, IdTenant, IdUnit, Status, RentStatus, DateCreated, DateActive, "
    "DateRenewed, DateVacating, DateNextDue, DateUpdated, Term, TermType, ExpireOption, "
    "NoticeDays, "
    "Rent, RentAccount, Discount, DiscountDays, OneTimeFee, OneTimeDays, DailyFee, DailyDays, "
    "EvictDays, Subs, SubsAmt, SubsidyType, SubsidyId, [Option], OptionCredit) "
    "VALUES (101, 103, 102, 'Contracted', '', '12/01/2022', '01/01/2023', "
    "'01/01/2023', '', '01/01/2024', '12/31/2023', 12, 'Month(s)', 'MTM', 30, "
    "1000, 105, 0, 5, 0, 5, 0, 10, 60, False, 0, 1, 106, False, 0)",
};

} // namespace

BooksWithOneLease::BooksWithOneLease(const std::filesystem::path& folder) {
    support::CopyBooks(folder, [](const std::filesystem::path& made) {
        store::CreateDatabase(made);
        core::App().Connection.Open(made / "Vestrel.mdb");
        for (const std::string_view statement : kRecords)
            core::App().Connection.Execute(statement);
    });
    platform::SetToday(platform::Date(2023, 12, 31));
}

BooksWithOneLease::~BooksWithOneLease() {
    core::App().Connection.Close();
}

void SetLeaseField(std::string_view field, std::string_view value) {
    platform::Recordset lease;
    lease.Open(core::App().Connection, "SELECT * FROM Lease", platform::CursorMode::Updatable);
    lease[field].Set(value == "NULL" ? platform::Value() : platform::Value(value));
    lease.Update();
}

} // namespace tests
