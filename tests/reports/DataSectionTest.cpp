#include "platform/database/Recordset.h"
#include "reports/ReportsFixture.h"

namespace {

using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;

class DataSection : public Reports {
  protected:
    DataSection() {
        Row("1, 'Rent', 100, 'East', True");
        Row("2, 'Rent', 50.5, 'West', False");
        Row("3, 'Fee', -12, 'East', False");
    }
    static void Row(const std::string& values) {
        CoreBooks::Run(
            "INSERT INTO Transactions (IdTransaction, TaxCategory, Amount, Description, "
            "Reconciled) VALUES (" +
            values + ")");
    }
    const std::string kGrouped =
        "[DATA]\nSHOWTABLE\nSQLFIELDS=Description, Amount\nSQLTABLES=Transactions\n"
        "SQLFILTER=IdTransaction < 9\nSQLORDER=IdTransaction\nGROUPFIELD=TaxCategory\n"
        "GROUPDESCRIPTION=category\nTOTALFIELD=Amount\nTOTALDESCRIPTION=of it\n";
    static constexpr std::string_view kTable = "table <7020 >2340";
    static constexpr std::string_view kHead = "head Description|Amount";
};

TEST_F(DataSection, ShowsATableWithWeightedColumns) {
    // 8, 54, 18, 6 and 18 of 104 parts of the 9360 twips between the margins.
    EXPECT_THAT(
        Lines("[DATA]\nSHOWTABLE\nHEADLINE=Head\nFOOTLINE=-\nHEADTEXT=On %DATE%\n"
              "SQLQUERY=SELECT IdTransaction AS Id, Description, Amount, Reconciled, "
              "DateValue('02/29/2024') AS [Day] FROM Transactions ORDER BY IdTransaction\n"),
        ElementsAre("rule Head", "p ", "h3 On 05/17/2024", "table >720 <4860 >1620 <540 <1620",
                    "head Id|Description|Amount|Reconciled|Day", "row 1|East|100.00|Yes|02/29/2024",
                    "row 2|West|50.50|No|02/29/2024", "row 3|East|(12.00)|No|02/29/2024", "p ",
                    "rule "));
    // A field's own text has a size, a computed one may be long.
    EXPECT_EQ(Lines("[DATA]\nSHOWTABLE\nSQLQUERY=SELECT CheckNum, DateEffective, Description & '' "
                    "AS [Long], TaxCategory FROM Transactions\n")[0],
              "table <952 <1428 <4759 <2221");
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

TEST_F(DataSection, ValuesAreTextOfTheirCell) {
    Row("4, 'a|b;c', 1, 'd|e' & Chr(10) & ';f', False");
    EXPECT_THAT(
        Lines("[DATA]\nSHOWTABLE\nSQLQUERY=SELECT TaxCategory, Description FROM "
              "Transactions WHERE IdTransaction = 4\n"),
        ElementsAre("table <3196 <6164", "head TaxCategory|Description", "row a|b;c|d|e\n;f"));
    EXPECT_THAT(
        Run("[DATA]\nSHOWRECORDS\nSQLQUERY=SELECT TaxCategory, Description FROM "
            "Transactions WHERE IdTransaction = 4\n")
            .lines,
        ElementsAre("table <2880 <6480", "row TaxCategory|a|b;c", "row Description|d|e\n;f"));
}

TEST_F(DataSection, GroupsWithTotalsAndAGrandTotal) {
    const std::string& grouped = kGrouped;
    const auto lines = Lines(grouped + "SHOWGRANDTOTAL=no matter\nLINEBETWEEN=TRUE\n");
    EXPECT_THAT(lines, ElementsAre("h3 Selected category = Fee", kTable, kHead, "row East|(12.00)",
                                   "p Total of it = (12.00)", "p ", "rule ",
                                   "h3 Selected category = Rent", kTable, kHead, "row East|100.00",
                                   "row West|50.50", "p Total of it = 150.50", "p ", "rule ",
                                   "p Grand Total of it = 138.50"));
    EXPECT_THAT(Lines(grouped + "FOOTTEXT=Sum %grouptotal% on %DATE%\n")[4],
                "p Sum (12.00) on 05/17/2024");
    // A sum that is not money is shown as it is.
    EXPECT_THAT(Lines(grouped + "TOTALFIELD=IdTransaction\nSHOWGRANDTOTAL\n").back(),
                "p Grand Total of it = 6");
    EXPECT_THAT(Lines(grouped + "GROUPFIELD=IdTransaction\n"),
                testing::Contains("h3 Selected category = 3"))
        << "a number is compared as text";
    // One pass: a total, no grand total.
    EXPECT_THAT(Lines("[DATA]\nSHOWTABLE\nSQLFIELDS=Amount\nSQLTABLES=Transactions\n"
                      "TOTALFIELD=Amount\nTOTALDESCRIPTION=due\nSHOWGRANDTOTAL\n"),
                ElementsAre("table >9360", "head Amount", "row 100.00", "row 50.50", "row (12.00)",
                            "p Total due = 138.50"));
}

TEST_F(DataSection, AGroupedTotalNeedsAFilter) {
    // The total's query fails without one, and the line shows what the group before had: nothing.
    const auto lines = Lines(kGrouped + "SQLFILTER=\nSHOWGRANDTOTAL\n");
    EXPECT_THAT(lines, testing::Contains("p Total of it = ").Times(2));
    EXPECT_EQ(lines.back(), "p Grand Total of it = 0");
}

TEST_F(DataSection, SaysSoWhenThereIsNothing) {
    const std::string none = "h3 No records found.";
    EXPECT_THAT(Lines(kGrouped + "SQLFILTER=IdTransaction > 9\n"), ElementsAre(none));
    EXPECT_THAT(Lines("[DATA]\nSHOWTABLE\nSQLFIELDS=a\n"), ElementsAre(none)) << "no table";
    EXPECT_THAT(Lines("[DATA]\nSHOWTABLE\nSQLQUERY=SELECT Nope FROM Transactions\nHEADTEXT=h\n"),
                ElementsAre(none));
    EXPECT_THAT(Lines("[DATA]\nSHOWRECORDS\nHEADTEXT=h\nFOOTTEXT=f\nSQLFIELDS=Amount\n"
                      "SQLTABLES=Transactions\nSQLFILTER=False\n"),
                ElementsAre(none));
    EXPECT_THAT(Lines("[DATA]\nHEADLINE=Head\nSQLQUERY=SELECT Amount FROM Transactions\n"),
                ElementsAre("rule Head", "p "))
        << "no mode";
    // A row that can't be read makes the query fail, wherever the row is.
    CoreBooks::Run("UPDATE Transactions SET DateEffective = 'soon' WHERE IdTransaction = 3");
    EXPECT_THAT(Lines("[DATA]\nSHOWTABLE\nSQLQUERY=SELECT DateValue(DateEffective) AS D "
                      "FROM Transactions ORDER BY IdTransaction\n"),
                ElementsAre(none));
}

TEST_F(DataSection, ARowThatFailsFarDownEndsTheRunWithItsLine) {
    CoreBooks::Run("UPDATE Transactions SET DateEffective = '01/01/2024'");
    for (int i = 4; i <= platform::kFirstRowsRead + 10; ++i) {
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

TEST_F(DataSection, AnApostropheBreaksItsGroup) {
    Row("4, 'O''Brien', 1, 'East', False");
    const std::string grouped =
        "[DATA]\nSHOWTABLE\nSQLFIELDS=Amount\nSQLTABLES=Transactions\nGROUPFIELD=TaxCategory\n"
        "GROUPDESCRIPTION=g\n";
    EXPECT_THAT(Lines(grouped),
                ElementsAre("h3 Selected g = Fee", "table >9360", "head Amount", "row (12.00)",
                            "p ", "p ", "h3 Selected g = Rent", "table >9360", "head Amount",
                            "row 100.00", "row 50.50"));
    // A whole query has no groups and no totals.
    EXPECT_THAT(Lines(grouped + "SQLQUERY=SELECT Amount FROM Transactions WHERE IdTransaction=4\n"
                                "TOTALFIELD=Amount\nHEADTEXT=all\n"),
                ElementsAre("h3 all", "table >9360", "head Amount", "row 1.00", "p Total  = "));
}

TEST_F(DataSection, ShowsRecordsOneByOne) {
    const std::string records =
        "[DATA]\nSHOWRECORDS\nLINEBETWEEN=TRUE\nHEADTEXT=%DATE%\nFOOTTEXT=end\n"
        "SQLQUERY=SELECT Amount, 'x' AS Space2, Null AS [Note], Reconciled FROM Transactions "
        "ORDER BY IdTransaction\n";
    const auto one = [](const std::string& amount, const std::string& flag) {
        return std::vector<std::string>{"table <2880 <6480", "row Amount|" + amount,   "row |x",
                                        "row Note|",         "row Reconciled|" + flag, "p end"};
    };
    std::vector<std::string> expected = {"h3 %DATE%"}; // its tags are not filled here
    const auto add = [&](const std::vector<std::string>& lines) {
        expected.insert(expected.end(), lines.begin(), lines.end());
    };
    add(one("100.00", "Yes"));
    EXPECT_EQ(Lines(records + "MAXRECORDS=1\n"), expected);
    add({"p ", "rule "});
    add(one("50.50", "No"));
    EXPECT_EQ(Lines(records + "MAXRECORDS=2\n"), expected);
    EXPECT_EQ(Lines(records + "MAXRECORDS=-1\n").size(), Lines(records).size());
}

TEST_F(DataSection, ShowsWhatABuildingsDepreciationLacks) {
    const std::string table = "[DATA]\nSHOWDEPRTABLE\n";
    report.SelectedId = 5;
    EXPECT_THAT(Lines(table), ElementsAre("h3 No records found."));
    CoreBooks::Run("INSERT INTO Building (IdBuilding, DeprBasis) VALUES (5, 0)");
    EXPECT_THAT(Lines(table), ElementsAre("p Property purchase date has not specified.",
                                          "p Property depreciation basis has not been entered.",
                                          "p Depreciation term is invalid.",
                                          "p Depreciation method has not been specified."));
    CoreBooks::Run(
        "UPDATE Building SET PurchDate = '06/15/2020', DeprBasis = 100000, DeprPeriod = 27.5, "
        "DeprMethod = 'Straight | Line' WHERE IdBuilding = 5");
    const auto lines = Lines(table);
    ASSERT_EQ(lines.size(), 30U) << "columns, titles and 28 years";
    EXPECT_EQ(lines[1],
              "row Period Ending|Beginning Of Period|Period Loss|End Of Period|Method Used");
    EXPECT_EQ(lines[2], "row 12/31/2020|100,000.00|1,970.00|98,030.00|Straight Line");
    EXPECT_EQ(lines[29], "row 12/31/2047|3,494.00|3,494.00|0.00|Straight Line");
    report.SelectedYear = "2021";
    EXPECT_THAT(
        Lines("[DATA]\nSHOWDEPRTABLE\nSHOWDEPRECIATION\n"),
        ElementsAre("table <2160 >2160", "row Depreciation Basis|100,000.00",
                    "row Depreciation Method|Straight | Line", "row 2021 Depreciation|3,636.00"));
    CoreBooks::Run("UPDATE Building SET PurchDate = 'long ago'");
    EXPECT_THAT(Fault(table), HasSubstr("line 3: "));
}

TEST_F(DataSection, ShowsAMortgagesSchedule) {
    report.SelectedId = 6;
    const std::string section = "[DATA]\nSHOWAMORTIZATION\nHEADTEXT=%DATE%\nFOOTTEXT=end\n";
    EXPECT_THAT(Lines(section), ElementsAre("h3 No records found."));
    CoreBooks::Run(
        "INSERT INTO Mortgage (IdMortgage, OrigPV, OrigPer, OrigRate, FirstDue, CurrentPeriod) "
        "VALUES (6, 12000, 12, 0.12, '01/31/2024', 1)");
    const auto lines = Lines(section);
    ASSERT_EQ(lines.size(), 16U);
    EXPECT_EQ(lines[0], "h3 %DATE%");
    EXPECT_TRUE(lines[2].starts_with("head No.|Rate|Pmt|Pri|Xtra Pri|Int|Balance|Remaining|Due"));
    EXPECT_TRUE(lines[3].starts_with("row 1|12.00|1,066.19|946.19|")) << lines[3];
    EXPECT_EQ(lines.back(), "p end");
}

} // namespace
