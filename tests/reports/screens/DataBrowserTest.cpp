#include <gmock/gmock.h>

#include "core/Globals.h"
#include "platform/system/Paths.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/screens/DataBrowser.h"
#include "support/screens/Screens.h"

namespace {

using reports::screens::DataBrowser;
using support::ClickAction;
using support::Find;

class DataBrowserTest : public support::ScreenTest {
  protected:
    DataBrowserTest() {
        reports::LoadReportList();
        reports::SetReportViewer([this](int index) { run_ = index; });
        browser_.resize(640, 480);
        browser_.show();
    }
    ~DataBrowserTest() override { reports::SetReportViewer(nullptr); }

    std::string Execute(std::string_view sql) {
        Find<QPlainTextEdit>(browser_, "txtSQL")
            .setPlainText(QString::fromUtf8(sql.data(), static_cast<qsizetype>(sql.size())));
        ClickAction(browser_, "EXECUTE");
        return Result();
    }
    std::string Result() { return Find<QLabel>(browser_, "lblResult").text().toStdString(); }
    QColor Color() {
        return Find<QLabel>(browser_, "lblResult").palette().color(QPalette::WindowText);
    }
    bool CanPrint() { return Find<QPushButton>(browser_, "cmdPrint").isEnabled(); }

    DataBrowser browser_;
    int run_ = 0;
};

TEST_F(DataBrowserTest, SaysWhatBecameOfAStatement) {
    EXPECT_EQ(Result(), "Database connected");
    const std::string good = "Command completed successfully";
    struct Case {
        const char* sql;
        std::string result;
        bool canPrint;
    };
    const Case cases[] = {
        {"", "SQL Command not specified", false},
        {" \n ", "SQL Command not specified", false},
        {"SELECT", "Improper SQL query", false},
        {"Select\nCount(*) AS N\nFROM Tenant", good, true},
        {"SELECT IdTenant FROM Tenant WHERE False", "Command returned 0 records", false},
        {"SELECT Nothing FROM Tenant", "Command returned 0 records", false},
        {"update Tenant SET Notes = 'x' WHERE IdTenant = -5", good, false},
        {"UPDATE Tenant SET Nothing = 'x'", "Command returned error", false},
        {"drop table Tenant", "Unsupported command: DROP", false},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(Execute(one.sql), one.result) << one.sql;
        EXPECT_EQ(CanPrint(), one.canPrint) << one.sql;
    }
    Execute("UPDATE Tenant SET Nothing = 'x'");
    EXPECT_THAT(Find<QLabel>(browser_, "lblReason").text().toStdString(),
                testing::HasSubstr("Nothing"));
    EXPECT_EQ(Color(), QColor(255, 0, 0));
    Execute("SELECT Count(*) AS N FROM Tenant");
    EXPECT_FALSE(Find<QLabel>(browser_, "lblReason").isVisible());
    EXPECT_EQ(Color(), QColor(0, 0, 255));
}

TEST_F(DataBrowserTest, ShowsRowsAndTablesAndPrintsTheLastQuery) {
    const auto& grid = Find<core::grid::Grid>(browser_, "grd");
    Execute("SELECT 'a;b' AS [One], 2 AS [Two] FROM Configuration");
    ClickAction(browser_, "TABLES");
    EXPECT_EQ(Result(), "Tables retrieved successfully");
    EXPECT_FALSE(CanPrint());
    EXPECT_THAT(support::GridText(grid), testing::HasSubstr("Transactions|TABLE"));

    Execute("SELECT LastName FROM Tenant WHERE False");
    EXPECT_THAT(support::GridText(grid), testing::Not(testing::HasSubstr("TABLE")))
        << "the rows of another command would be taken for its result";
    EXPECT_FALSE(CanPrint());

    const std::string sql = "SELECT IdTenant,\n LastName FROM Tenant ORDER BY 1";
    Execute(sql);
    ASSERT_TRUE(CanPrint());
    // Text typed afterwards isn't the statement of the rows.
    Find<QPlainTextEdit>(browser_, "txtSQL").setPlainText(QStringLiteral("DELETE FROM Tenant"));
    ClickAction(browser_, "PRINT");
    EXPECT_EQ(run_, reports::kScratchReport);
    EXPECT_EQ(platform::ReadWholeFile(core::App().ReportPath + "SysReport"),
              "[GENERAL]\n\n[HEADER]\nTitle=Database Browser Query\n"
              "SubTitle=Query: SELECT IdTenant,  LastName FROM Tenant ORDER BY 1\n\n[DATA]\n"
              "SQLQuery=SELECT IdTenant,  LastName FROM Tenant ORDER BY 1\nShowTable\n\n[FOOTER]\n"
              "\n");
}

TEST_F(DataBrowserTest, TellsOfAClosedDatabaseAndIsReachedByKeys) {
    QTest::keyClicks(&Find<QPlainTextEdit>(browser_, "txtSQL"),
                     QStringLiteral("SELECT Count(*) AS N FROM Tenant"));
    QTest::keyClick(&Find<QPlainTextEdit>(browser_, "txtSQL"), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Result(), "Command completed successfully");
    EXPECT_THAT(support::LookFaults(browser_, "DataBrowser"), testing::IsEmpty());
    core::App().Connection.Close();
    browser_.hide();
    browser_.show();
    EXPECT_EQ(Result(), "Database not connected");
    ClickAction(browser_, "TABLES");
    EXPECT_EQ(Result(), "Tables retrieval failed");
}

} // namespace
