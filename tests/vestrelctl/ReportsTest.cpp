#include <algorithm>
#include <filesystem>
#include <fstream>

#include "vestrelctl/VestrelctlFixture.h"

namespace tests {

namespace {

class ReportCommands : public Vestrelctl {
  protected:
    ReportCommands() {
        std::filesystem::create_directory(folder_ / "rpt");
        EXPECT_EQ(Run("init " + Books()).status, 0);
        EXPECT_EQ(Run(OnBooks() + "sql -",
                      "INSERT INTO Building (IdBuilding, Address, PurchDate, DeprBasis) VALUES "
                      "(5, '1 Elm; | \"St\"', '07/04/2020', 100000);\n"
                      "INSERT INTO Building (IdBuilding, Address) VALUES (6, 'Oak');\n")
                      .status,
                  0);
    }
    void Define(const std::string& file, const std::string& text) {
        std::ofstream(folder_ / "rpt" / file) << text;
    }
    std::string Reports() const { return "--reports '" + (folder_ / "rpt").string() + "' "; }
    std::string Out(const std::string& name) const { return (folder_ / name).string(); }
};

TEST_F(ReportCommands, ListTheCatalogueAsCsv) {
    const std::string head =
        "\"Index\",\"FileName\",\"Kind\",\"Form\",\"Tab\",\"Description\",\"Notes\",\"Icon\","
        "\"SelectItem\",\"SelectDetail\",\"SelectYear\",\"DateRange\"\n"
        "1,\"SysReport\",1,0,0,\"\",\"\",0,0,False,False,0\n";
    EXPECT_EQ(Run("reports " + Reports()).output, head);
    EXPECT_EQ(Run("reports --reports /nowhere").output, head);
    Define("a.rpt",
           "[GENERAL]\nDESCRIPTION=Say \"a\"\nFORM=UNIT\nTAB=SUMMARY\nSELECTITEM=Unit\n"
           "SELECTYEAR=TRUE\nDATERANGE=PREVYEAR\n");
    EXPECT_EQ(Run(Reports() + "reports").output,
              head + "2,\"a.rpt\",2,8,3,\"Say \"\"a\"\"\",\"\",5,29,False,True,3\n");
}

TEST_F(ReportCommands, WriteAReportInEveryFormat) {
    Define("b.rpt",
           "[GENERAL]\nDESCRIPTION=Buildings\n[HEADER]\nTITLE=All\n[DATA]\nDETAILLEVEL=SUMMARY\n"
           "HEADLINE=Summary %SELECTEDYEAR% %STARTDATE%-%ENDDATE%\n[DATA]\nSHOWTABLE\n"
           "SQLQUERY=SELECT Address, PurchDate FROM Building WHERE IdBuilding = %SELECTEDID%\n");
    const std::string report = OnBooks() + "report Buildings " + Reports() + "--id 5 --output ";
    const std::pair<const char*, const char*> starts[] = {
        {"a.pdf", "%PDF-1."}, {"a.html", "<!"}, {"a.rtf", "{\\rtf1"}, {"a.TXT", ""}};
    for (const auto& [file, start] : starts) {
        const Outcome made = Run(report + "'" + Out(file) + "'");
        EXPECT_EQ(made.status, 0) << made.errors;
        EXPECT_EQ(made.output, "");
        EXPECT_EQ(ReadFile(Out(file)).rfind(start, 0), 0U) << file;
    }
    const std::string text = ReadFile(Out("a.TXT"));
    EXPECT_NE(text.find("1 Elm; | \"St\""), std::string::npos) << text;
    EXPECT_EQ(text.find("Summary"), std::string::npos);

    EXPECT_EQ(Run("--today 03/15/2024 " + report + "'" + Out("a.txt") +
                  "' --summary --year 2019 --from 1/2/2023 --to 02/29/2024")
                  .status,
              0);
    EXPECT_NE(ReadFile(Out("a.txt")).find("Summary 2019 01/02/2023-02/29/2024"), std::string::npos);
    EXPECT_EQ(
        Run("--today 03/15/2024 " + report + "'" + Out("a.txt") + "' --summary --range previous")
            .status,
        0);
    EXPECT_NE(ReadFile(Out("a.txt")).find("Summary 2024 01/01/2023-12/31/2023"), std::string::npos);

    // By file name, and by a path to a file outside the folder.
    for (const std::string& name :
         {std::string("B.RPT"), "'" + (folder_ / "rpt" / "b.rpt").string() + "'"}) {
        EXPECT_EQ(Run(OnBooks() + "report " + name + " " + Reports() + "--id 6 --output '" +
                      Out("c.html") + "'")
                      .status,
                  0)
            << name;
        EXPECT_NE(ReadFile(Out("c.html")).find(">Oak<"), std::string::npos) << name;
    }
}

TEST_F(ReportCommands, SayInOneLineWhatIsWrong) {
    Define("bad.rpt", "[DATA]\nHEADLINE=x\nPARAGRAPH=y\n");
    Define("good.rpt", "[TEXT]\nPARAGRAPH=fine\n");
    std::ofstream(folder_ / "old.txt") << "old";
    const std::string report = OnBooks() + "report " + Reports();
    Outcome made = Run(report + "bad --output '" + Out("old.txt") + "'");
    EXPECT_EQ(made.status, 1);
    EXPECT_EQ(made.errors,
              "vestrelctl: bad.rpt, line 3: PARAGRAPH is not a command of a [DATA] section\n");
    EXPECT_EQ(ReadFile(Out("old.txt")), "old") << "a report that fails leaves the older file";
    EXPECT_EQ(Run(report + "nothing --output a.txt").errors,
              "vestrelctl: There is no report 'nothing'\n");
    EXPECT_EQ(Run(report + "/no/such.rpt --output a.txt").status, 1);
    EXPECT_EQ(Run(report + "good --output '" + Out("no/such/folder/a.txt") + "'").status, 1);
    for (const char* words : {"good", "good --output a.doc", "--output a.txt",
                              "good --output a.txt "
                              "--year 99",
                              "good --output a.txt --range soon"}) {
        EXPECT_EQ(Run(report + words).status, 2) << words;
    }
}

TEST_F(ReportCommands, CheckADefinition) {
    Define("c.rpt",
           "[GENERAL]\nDESCRIPTION = Blanks\nFORM=HOUSE\nTYTLE=x\n[DATA]\nSHOWTABLE\n"
           "SQLQUERY=SELECT Nope FROM Building\nPARAGRAPH=x\nNOTES=late\n[TEXT]\nFONTBOLD=TRUE\n"
           "SQLQUERY=SELECT Address AS Street FROM Building WHERE IdBuilding = %SELECTEDID%\n"
           "PARAGRAPH=%street% %DATE% %CITI% and 5% of 10%\nFONTSIZE=big\nTEXTCOLOR=red\n[ODD]\n");
    const std::string file = (folder_ / "rpt" / "c.rpt").string();
    const Outcome checked = Run("report --check '" + file + "'");
    EXPECT_EQ(checked.status, 1);
    std::string expected;
    for (const char* fault :
         {"2: the catalogue doesn't see DESCRIPTION with blanks around it",
          "3: 'HOUSE' is not a value of FORM", "4: TYTLE is not a key",
          "7: Unknown field 'Nope' (line 1, column 8)",
          "8: PARAGRAPH is not a command of a [DATA] section", "9: NOTES counts in [GENERAL] only",
          "11: FONTBOLD has no command before it", "13: nobody fills %CITI%"}) {
        expected += file + ":" + fault + "\n";
    }
    EXPECT_EQ(checked.output.substr(0, expected.size()), expected);
    EXPECT_NE(checked.output.find(":14: FONTSIZE: "), std::string::npos);
    EXPECT_NE(checked.output.find(":15: TEXTCOLOR: "), std::string::npos);
    EXPECT_NE(checked.output.find(":16: [ODD] is not a section"), std::string::npos);
    Define("d.rpt", "[GENERAL]\nDESCRIPTION=Fine\n[TEXT]\nPARAGRAPH=%COMPANYNAME% at 5%\n");
    const Outcome fine = Run("report --check '" + (folder_ / "rpt" / "d.rpt").string() + "'");
    EXPECT_EQ(fine.status, 0) << fine.output;
    EXPECT_EQ(fine.output, "");
}

TEST_F(ReportCommands, PrintABuildingsDepreciation) {
    const Outcome schedule = Run(OnBooks() + "depreciation 5");
    ASSERT_EQ(schedule.status, 0) << schedule.errors;
    EXPECT_EQ(
        schedule.output.rfind("\"Period End\",\"Beginning\",\"Loss\",\"Ending\",\"Method\"\n"
                              "12/31/2020,100000.0000,1667.0000,98333.0000,\"Straight Line\"\n"
                              "12/31/2021,98333.0000,3636.0000,94697.0000,",
                              0),
        0U)
        << schedule.output;
    EXPECT_EQ(std::count(schedule.output.begin(), schedule.output.end(), '\n'), 30);
    EXPECT_EQ(Run(OnBooks() + "depreciation 7").errors, "vestrelctl: There is no building 7\n");
}

} // namespace

} // namespace tests
