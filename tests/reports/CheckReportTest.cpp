#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "reports/CheckReport.h"

namespace {

/// The faults of a definition as "line: text".
std::vector<std::string> FaultsOf(std::string_view definition) {
    std::vector<std::string> faults;
    for (const auto& fault : reports::CheckReport(definition, reports::ReportKind::Report))
        faults.push_back(std::to_string(fault.line) + ": " + fault.text);
    return faults;
}

TEST(ReportCheck, FindsTagsWhereNobodyFillsThem) {
    struct Case {
        std::string definition;
        std::vector<std::string> faults;
    };
    const std::string table =
        "[DATA]\nSHOWTABLE\nSQLFIELDS=Address\nSQLTABLES=Building\nSQLFILTER=True\n";
    const std::vector<Case> cases = {
        {"TITLE=%COMPANYNAME% rents\nTITLE=Rents of 5% and 10%\n", {}},
        {"[HEADER]\nTITLE=%COMPANYNAME% rents\n", {"2: nobody fills %COMPANYNAME%"}},
        {"[HEADER]\n\nSUBTITLE=%ENDDATE% %DATE% %LOOPID%\n",
         {"3: nobody fills %DATE%", "3: nobody fills %LOOPID%"}},
        {"[LOOP]\nSQLQUERY=SELECT IdUnit FROM Unit WHERE Unit = '%YEAR%' OR IdUnit = "
         "%selectedid%\n",
         {"2: nobody fills %YEAR%"}},
        {"[DATA]\nSHOWTABLE\nSQLQUERY=SELECT City FROM Building WHERE City = '%TOWN%'\n",
         {"3: nobody fills %TOWN%"}},
        {"[DATA]\nSHOWTABLE\nSQLQUERY=SELECT City FROM Building WHERE City LIKE '%town%'\n", {}},
        {table + "SQLFILTER=City = '%TOWN%' AND Zip = '%LOOPID%'\n", {"6: nobody fills %TOWN%"}},
        {table + "HEADTEXT=%YEAR% %GROUPNAME%\n", {"6: nobody fills %GROUPNAME%"}},
        {table + "TOTALFIELD=PurchPrice\nFOOTTEXT=%GROUPTOTAL%%FEE%\nTOTALDESCRIPTION=%TAX%\n",
         {"7: nobody fills %FEE%", "8: nobody fills %TAX%"}},
        {"[DATA]\nSHOWRECORDS\nSQLQUERY=SELECT City FROM Building\nHEADTEXT=%YEAR%\n",
         {"4: nobody fills %YEAR%"}},
        {"[TEXT]\nTABLE=%DATE%|%City%\nTABLEHEADER=%DATE%\nSQLQUERY=SELECT City FROM Building\n",
         {"2: nobody fills %DATE%"}},
        {"[TEXT]\nCALC=%T%=%A%+1\nPARAGRAPH=%T%\n", {"2: nobody fills %A%"}},
        {"[TEXT]\nPARAGRAPH=x\nFORMATDATE=DUE\n", {"3: no query or calculation gives 'DUE'"}},
    };
    for (const auto& [definition, faults] : cases)
        EXPECT_EQ(FaultsOf(definition), faults) << definition;
}

TEST(ReportCheck, FindsCommandsWithoutEffect) {
    struct Case {
        std::string definition;
        std::vector<std::string> faults;
    };
    const std::string grouped =
        "[DATA]\nSHOWTABLE\nSQLFIELDS=Address\nSQLTABLES=Building\nGROUPFIELD=City\n";
    const std::vector<Case> cases = {
        {"[DATA]\nSHOWTABLE\n", {"1: the section has no query"}},
        {"[DATA]\nHEADLINE=-\n", {}},
        {"\n[DATA]\nSQLQUERY=SELECT City FROM Building\n",
         {"2: the section has a query and no SHOW command"}},
        {"[TEXT]\nPARAGRAPH=x\nLOCATE=1,1\n", {"3: the report has no SCALE of two numbers"}},
        {"SCALE=80\n[TEXT]\nDRAWBOX=1,1,2,2\n", {"3: the report has no SCALE of two numbers"}},
        {"[TEXT]\nLOCATE=1,1\nSCALE=80,60\n", {}},
        {grouped + "HEADTEXT=x\n", {"6: HEADTEXT isn't printed in a table with groups"}},
        {grouped + "TOTALFIELD=PurchPrice\n", {"6: a total of groups needs a SQLFILTER"}},
        {grouped + "FOOTTEXT=x\n", {"6: FOOTTEXT of a table is printed with a TOTALFIELD only"}},
        {"[DATA]\nSHOWTABLE\nSQLQUERY=SELECT City FROM Building\nTOTALFIELD=PurchPrice\n",
         {"4: TOTALFIELD has no effect with SQLQUERY"}},
        {grouped + "GROUPFIELD=Town\n", {"6: Unknown field 'Town' (line 1, column 17)"}},
    };
    for (const auto& [definition, faults] : cases)
        EXPECT_EQ(FaultsOf(definition), faults) << definition;
}

} // namespace
