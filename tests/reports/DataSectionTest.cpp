#include "platform/database/Recordset.h"
#include "reports/ReportsFixture.h"

namespace {

using namespace tests;
using testing::HasSubstr;

class DataSection : public Reports {};

TEST_F(DataSection, GivesItsTablesTheirLook) {
    CoreBooks::Run("INSERT INTO Transactions (IdTransaction, Amount) VALUES (1, 5)");
    const FlowLines flow =
        Run("[DATA]\nSHOWTABLE\nSQLQUERY=SELECT Amount FROM Transactions\nTABLEBORDER=NONE\n"
            "TABLEALIGNCURRENCY=1\nTABLECOLBOLD=1,2\n");
    EXPECT_EQ(flow.tables[0].border, platform::TableBorder::None);
    EXPECT_TRUE(flow.tables[0].columns[0].bold && flow.tables[0].columns[0].alignCurrency);
    EXPECT_TRUE(flow.tables[0].header.bold);
    EXPECT_EQ(flow.tables[0].header.background, 0xC0C0C0U);
    EXPECT_EQ(Run("[DATA]\nSHOWTABLE\nSQLQUERY=SELECT Amount FROM Transactions\n").tables[0].border,
              platform::TableBorder::BelowHeader);
}

TEST_F(DataSection, ARowThatFailsFarDownEndsTheRunWithItsLine) {
    for (int i = 1; i <= platform::kFirstRowsRead + 10; ++i) {
        CoreBooks::Run("INSERT INTO Transactions (IdTransaction, DateEffective) VALUES (" +
                       std::to_string(i) + ", '01/01/2024')");
    }
    const std::string query = "SELECT DateValue(DateEffective) AS D FROM Transactions\n";
    EXPECT_EQ(Fault("[DATA]\nSHOWTABLE\nSQLQUERY=" + query), "");
    CoreBooks::Run("UPDATE Transactions SET DateEffective = 'soon' WHERE IdTransaction = " +
                   std::to_string(platform::kFirstRowsRead + 5));
    EXPECT_THAT(Fault("[DATA]\nSHOWTABLE\nSQLQUERY=" + query), HasSubstr("test.rpt, line 3: "));
    EXPECT_THAT(Fault("[LOOP]\nSQLQUERY=" + query + "[TEXT]\nPARAGRAPH=%LOOPID%\n"),
                HasSubstr("test.rpt, line 4: "));
}

} // namespace
