#include "core/Configuration.h"
#include "reports/ReportsFixture.h"
#include "support/Cases.h"

namespace {

using namespace tests;
using testing::ElementsAre;

class TextSection : public Reports {
  protected:
    TextSection() {
        CoreBooks::Run(
            "INSERT INTO Account (IdAccount, ShowAs, Balance) VALUES (1, 'Ann; Bob | Co', 1000)");
        CoreBooks::Run("INSERT INTO Account (IdAccount, ShowAs, Balance) VALUES (2, 'Carl', -12)");
    }

    /// The one paragraph of a section.
    std::string Paragraph(std::string_view commands) {
        const auto lines = Lines("[TEXT]\n" + std::string(commands));
        return lines.size() == 1 ? lines[0].substr(2) : "(" + std::to_string(lines.size()) + ")";
    }
};

TEST_F(TextSection, CalculatesBeforeItDraws) {
    const std::string values =
        "SQLQUERY=SELECT Balance AS A, 2.5 AS B, 0 AS Z, 'x' AS T, Null AS N FROM Account "
        "WHERE IdAccount = 1\n";
    support::ForEachCase(VESTREL_TEST_DATA "/sums.cases", "sums", [&](const support::Case& each) {
        EXPECT_EQ(Paragraph("PARAGRAPH=%t2%\n" + values + "CALC=%T2%=" + each["sum"]),
                  each["result"]);
    });
    EXPECT_EQ(Paragraph(values + "CALC=%T2%=%A%+%B%\nFORMATCURRENCY=t2\nPARAGRAPH=%T2%"),
              "1,002.50");
    EXPECT_EQ(Paragraph("SQLQUERY=SELECT '1/5/2024' AS D FROM Account\nFORMATDATE=D\n"
                        "FORMATDATE=NOBODY\nPARAGRAPH=%D%"),
              "01/05/2024");
}

TEST_F(TextSection, FillsTagsOfTheSettingsAndChangesNothing) {
    core::Config().CompanyName = "Acme";
    core::Config().DefaultCounty = "Kings";
    EXPECT_EQ(Paragraph("PARAGRAPH=%CompanyName% %COUNTY%\nSQLQUERY=DELETE FROM Account"),
              "Acme Kings");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Account"), "2") << "a report changes nothing";
}

TEST_F(TextSection, GivesAttributesToTheCommandBefore) {
    const FlowLines flow = Run(
        "[TEXT]\nFONTBOLD=TRUE\nFONTSIZE=40\nPARAGRAPH=plain\nPARAGRAPH=set\nAPPEND= and on\n"
        "FONTNAME=Liberation Serif\nFONTBOLD=true\nFONTITALIC=TRUE\nFONTSIZE=14\nTEXTCOLOR=255\n"
        "PARAGRAPH=plain again\nFONTUNDERLINE=YES\n");
    EXPECT_THAT(flow.lines, ElementsAre("p plain", "p setand on", "p plain again"));
    const platform::PrintStyle& set = flow.styles[1];
    EXPECT_EQ(set.fontName, "Liberation Serif");
    EXPECT_TRUE(set.fontBold && set.fontItalic && !set.fontUnderline);
    EXPECT_EQ(set.fontSize, 14);
    EXPECT_EQ(set.textColor, 255U);
    EXPECT_EQ(flow.styles[0], flow.styles[2]);
    EXPECT_FALSE(flow.styles[0].fontBold);
}

TEST_F(TextSection, DrawsTablesOfTheDefinitionsOwnText) {
    const FlowLines flow =
        Run("[TEXT]\nSQLQUERY=SELECT ShowAs FROM Account WHERE IdAccount=1\n"
            "TABLE=Name|%SHOWAS%;Second|\nAPPEND=2\nTABLEFORMAT=<2880|>1440\nTABLEHEADER=A|B\n"
            "TABLECOLBOLD=1, 9,0,x\nTABLEALIGNCURRENCY=2\nTABLEBORDER= box \n");
    ASSERT_EQ(flow.tables.size(), 1U);
    EXPECT_TRUE(flow.tables[0].columns[0].bold);
    EXPECT_FALSE(flow.tables[0].columns[1].bold);
    EXPECT_TRUE(flow.tables[0].columns[1].alignCurrency);
    EXPECT_EQ(flow.tables[0].border, platform::TableBorder::Box);
    // A tag's value is text of the table like any other: its "|" and ";" make cells and rows.
    EXPECT_THAT(flow.lines, ElementsAre("table <2880 >1440", "head A|B", "row Name|Ann",
                                        "row  Bob | Co", "row Second|2"));
    EXPECT_THAT(
        Lines("[TEXT]\nTABLE=\nTABLEFORMAT=<100\nTABLEBORDER=BOX\nPARAGRAPH=after\n").back(),
        "p after");
}

TEST_F(TextSection, PutsShapesOnTheGridOfThePage) {
    EXPECT_THAT(Lines("SCALE=100,100\n[TEXT]\nLOCATE=50,10\nPARAGRAPH=here\nSEPLINE=Caption\n"
                      "SEPLINE= - \nDRAWGRID\n"),
                ElementsAre("p here", "rule Caption", "rule "));

    // The printable page of 9360 by 12960 twips, or 9026 by 13958 of A4, in 100 by 100 cells.
    const platform::PrintedDocument pages = Pages(
        "SHOWTITLE=FALSE\nSHOWHEADER=FALSE\nSHOWFOOTER=FALSE\nSCALE=100,100\n[TEXT]\n"
        "LOCATE=50,10\nPARAGRAPH=here\nDRAWLINE=0,0,100\nPENCOLOR=255\nPENWIDTH=30\n"
        "DRAWBOX=10,20,30,40\nFILLCOLOR=128\n");
    ASSERT_EQ(pages.PageCount(), 1U);
    const platform::PrintedPage first = pages.Page(0);
    const auto& items = first.Items();
    ASSERT_EQ(items.size(), 3U);
    const auto& setup = pages.Info().setup;
    const auto x = [&](int cell) { return 1440 + setup.PrintWidth() * cell / 100; };
    const auto y = [&](int cell) { return 1440 + setup.PrintHeight() * cell / 100; };
    EXPECT_NEAR(items[0].x1, x(50), 1);
    EXPECT_GT(items[0].y1, y(10));
    EXPECT_EQ(items[1].kind, platform::PageItem::Kind::Line);
    EXPECT_EQ(items[1].color, 255U);
    EXPECT_EQ(items[1].pen, 30);
    EXPECT_NEAR(items[1].x2, x(100), 1);
    EXPECT_EQ(items[1].y2, 1440) << "a coordinate that is missing is 0";
    EXPECT_EQ(items[2].kind, platform::PageItem::Kind::Box);
    EXPECT_EQ(items[2].fill, 128U);
    EXPECT_TRUE(items[2].filled);
    EXPECT_NEAR(items[2].x1, x(10), 1);
    EXPECT_NEAR(items[2].y2, y(40), 1);
    // Attributes that a command doesn't set keep the previous command's values: only the brush, the
    // bold, italic and underline start afresh.
    EXPECT_EQ(items[2].color, 255U);

    EXPECT_GT(Pages("SCALE=40,40\n[TEXT]\nDRAWGRID\n").Page(0).Items().size(), 82U);
    // The title and frame, then a line and its number for each twentieth of both directions.
    EXPECT_LT(Pages("SCALE=2000000000,2147483647\n[TEXT]\nDRAWGRID\n").Page(0).Items().size(), 100U)
        << "only the numbered lines of a grid finer than twips";
    EXPECT_GT(Pages("SCALE=12240,15840\n[TEXT]\nDRAWGRID\n").Page(0).Items().size(), 28'000U)
        << "a grid of twips is drawn whole";
}

} // namespace
