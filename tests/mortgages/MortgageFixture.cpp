#include "mortgages/MortgageFixture.h"

#include <gtest/gtest.h>

#include "core/Globals.h"
#include "core/RunHeard.h"
#include "mortgages/MortgageRun.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "store/CreateDatabase.h"
#include "support/Books.h"
#include "support/CopyBooks.h"

namespace tests {

namespace {

constexpr std::string_view kRecords[] = {
    "INSERT INTO Configuration (CompanyName, NextId) VALUES ('Test', 1000)",
    "INSERT INTO Building (IdBuilding, Address) VALUES (202, '12 Elm Street')",
    "INSERT INTO Account (IdAccount, ShowAs, AccountType) VALUES (203, 'Ann''s Loans', "
    "'Mortgagee')",
    "INSERT INTO Account (IdAccount, ShowAs, AccountType) VALUES (204, 'First Bank', 'Bank')",
    "INSERT INTO Mortgage (IdMortgage, IdBuilding, IdMortgagor, IdMortgagee, IdEscrow, IdLastPmt, "
    "AccountNumber, Description, OrigPV, OrigPer, OrigRate, FirstDue, NextDue, DateUpdated, "
    "CurrentPeriod, CurrentPV, BalloonMtg, IntOnly, ARM, PPM, EscrowAmount, PMI, LateFee, "
    "GracePeriod) VALUES (201, 202, 204, 203, 0, 204, 'A-1', 'Elm''s loan', 100000, 360, 0.06, "
    "'01/15/2024', '01/15/2024', '12/31/2023', 1, 100000, False, False, False, False, 0, 0, 0, 0)",
};

} // namespace

BooksWithOneMortgage::BooksWithOneMortgage(const std::filesystem::path& folder) {
    support::CopyBooks(folder, [](const std::filesystem::path& made) {
        store::CreateDatabase(made);
        core::App().Connection.Open(made / "Vestrel.mdb");
        for (const std::string_view statement : kRecords)
            core::App().Connection.Execute(statement);
    });
    platform::SetToday(platform::Date(2023, 12, 31));
}

BooksWithOneMortgage::~BooksWithOneMortgage() {
    core::App().Connection.Close();
    platform::SetToday({});
}

void SetMortgageField(std::string_view field, std::string_view value) {
    platform::Recordset row;
    row.Open(core::App().Connection, "SELECT * FROM Mortgage", platform::CursorMode::Updatable);
    row[field].Set(value == "NULL" ? platform::Value() : platform::Value(value));
    row.Update();
}

std::vector<std::string> Rows(std::string_view statement) {
    return support::Rows(core::App().Connection, statement);
}

std::vector<std::string> Log() {
    return Rows(
        "SELECT DatePosted, Category, Period, Total, Flags FROM MortgageLog "
        "ORDER BY DateValue(DatePosted), IdMortgageLog");
}

void RunMortgagesOn(platform::Date day) {
    platform::SetToday(day);
    RunHeard heard;
    mortgages::UpdateMortgages(heard);
    EXPECT_EQ(heard.failed, std::vector<std::string>());
}

} // namespace tests
