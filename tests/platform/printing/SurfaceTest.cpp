#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "SampleReport.h"
#include "platform/printing/DocumentFlow.h"
#include "platform/printing/PrintSurface.h"
#include "platform/printing/PrintedDocument.h"
#include "platform/printing/SearchPages.h"
#include "platform/printing/WholeText.h"
#include "platform/values/Errors.h"

namespace platform {
namespace {

/// A surface of letter pages whose letters are 100 twips wide at 10 points and lines 240 high.
class Surface : public ::testing::Test {
  protected:
    void Start(const PageSetup& setup = {}) {
        surface.SetUp(setup);
        surface.Style().fontSize = 10;
        surface.StartDoc();
    }

    static PageSetup SixLines() { return {.marginBottom = 15'840 - 1'440 - 240 * 6}; }

    /// Each page's texts as "x,baseline text", the lines and boxes left out.
    std::string Texts(std::size_t index) const {
        std::string out;
        const PrintedPage page = document.Page(index);
        for (const PageItem& item : page.Items()) {
            if (item.kind != PageItem::Kind::Text) continue;
            out += std::to_string(item.x1) + "," + std::to_string(item.y1) + " " +
                   std::string(page.TextOf(item)) + "\n";
        }
        return out;
    }

    std::size_t Shapes(std::size_t index, PageItem::Kind kind) const {
        const PrintedPage page = document.Page(index);
        return static_cast<std::size_t>(std::ranges::count(page.Items(), kind, &PageItem::kind));
    }

    void Table(std::string_view format, std::string_view header,
               std::vector<std::vector<std::string>> rows, TableBorder border = TableBorder::None) {
        surface.StartTable();
        auto titles = ParseTableText(header);
        surface.AddTableArray(format, titles.empty() ? std::vector<std::string>() : titles[0],
                              std::make_unique<HeldRows>(std::move(rows)));
        surface.Table().border = border;
        surface.EndTable();
    }

    FixedMetrics metrics;
    PrintedDocument document;
    PrintSurface surface{metrics, &document, nullptr};
};

TEST_F(Surface, WrapsAtWordsHyphensAndWithinWordsThatAreTooLong) {
    Start({.marginRight = 12'240 - 1'440 - 2'000});
    surface.Style().fontSize = 20; // ten letters a line
    surface.Text("one two three");
    surface.Text("well-known 12-34567890");
    surface.Text("abcdefghijklmn o");
    surface.Text("  in\n\nab\u00E9\u5C71\u7530\u592A\u90CE\u5C71\u7530\u592A\u90CE");
    surface.EndDoc();
    EXPECT_EQ(Texts(0),
              "1440,1800 one two\n1440,2280 three\n"
              "1440,2760 well-known\n1440,3240 12-3456789\n1440,3720 0\n"
              "1440,4200 abcdefghij\n1440,4680 klmn o\n"
              "1440,5160   in\n"
              "1440,6120 ab\u00E9\u5C71\u7530\u592A\u90CE\u5C71\u7530\u592A\n"
              "1440,6600 \u90CE\n");
}

TEST_F(Surface, StartsAtThePositionAndMovesBelow) {
    Start();
    surface.SetCurrentX(0);
    surface.Text("left of the margin");
    surface.MoveTo(10'000, 5'000);
    surface.Text("located words");
    EXPECT_EQ(surface.CurrentX(), 1'440);
    EXPECT_EQ(surface.CurrentY(), 5'480);
    surface.Text("");
    EXPECT_EQ(surface.CurrentY(), 5'720);
    surface.Style().align = TextAlign::Right;
    surface.Text("right");
    surface.Style().align = TextAlign::Center;
    surface.Style().spaceBefore = 100;
    surface.Style().indentLeft = 720;
    surface.Text("centre");
    surface.EndDoc();
    EXPECT_EQ(Texts(0),
              "1440,1620 left of the margin\n10000,5180 located\n10000,5420 words\n"
              "10300,5900 right\n6180,6240 centre\n");
}

TEST_F(Surface, GoesOnOnTheNextPageWithHeaderAndFooter) {
    surface.SetFrame({.header = "Elm & Oak||02/29/2024", .footer = "Roll||Page %d"});
    Start({.orientation = PageOrientation::Landscape}); // 9,360 twips, 39 lines a page
    for (int i = 1; i <= 40; ++i)
        surface.Text("line " + std::to_string(i));
    surface.EndDoc();
    ASSERT_EQ(document.PageCount(), 2U);
    EXPECT_EQ(document.Page(0).Width(), 15'840);
    EXPECT_EQ(Texts(1),
              "13400,900 02/29/2024\n1440,900 Elm & Oak\n"
              "13800,11460 Page 2\n1440,11460 Roll\n1440,1620 line 40\n");
}

TEST_F(Surface, SetsWhatBelongsTogetherSmallerRatherThanBreakIt) {
    Start();
    struct Case {
        std::string header;
        std::string cell;
        int rows;        ///< lines of text, the title's included
        double smallest; ///< points
    };
    // A column of 500 twips, of which 376 are for text: three letters at 10 points.
    for (const auto& [header, cell, rows, smallest] :
         {Case{"", "1.0", 1, 10}, Case{"", "1,205.00", 1, 4.7}, Case{"", "(205.00)", 1, 4.7},
          Case{"", "ab cd", 2, 10}, Case{"", "abcdef", 1, 6.2}, Case{"", "abcdefghi", 3, 10},
          Case{"", "ab-cd", 2, 10}, Case{"", "ab-12", 1, 7.5}, Case{"No. Amount", "1", 3, 6.2},
          Case{"", "1.23456", 1, 9.4}, Case{"", "-0.125", 1, 7.5},
          Case{"", "12345678901234567890", 1, 1.8}, Case{"", "05/17/2024", 1, 3.7}}) {
        for (const Wrap wrap : {Wrap::Wrap, Wrap::Ellipsis}) {
            if (wrap == Wrap::Ellipsis && !StaysInOneLine(cell)) continue; // it is cut
            document.Clear();
            surface.StartDoc();
            surface.StartTable();
            auto titles = ParseTableText(header);
            surface.AddTableArray(
                ">500", titles.empty() ? std::vector<std::string>() : titles[0],
                std::make_unique<HeldRows>(std::vector<std::vector<std::string>>{{cell}}));
            surface.Table().columns[0].wrap = wrap;
            surface.EndTable();
            surface.EndDoc();
            const PrintedPage page = document.Page(0);
            EXPECT_EQ(page.Items().size(), static_cast<std::size_t>(rows)) << cell;
            float least = 100;
            for (const PageItem& item : page.Items()) {
                EXPECT_GE(item.x1, 1'440) << cell;
                EXPECT_LE(item.x2, 1'440 + 500) << cell;
                least = std::min(least, item.size);
            }
            EXPECT_NEAR(least, smallest, 0.01) << cell;
        }
    }
}

TEST_F(Surface, KeepsAHeadingWithWhatFollowsIt) {
    Start({.marginBottom = 15'840 - 1'440 - 240 * 10});
    for (int i = 0; i < 8; ++i)
        surface.Text("x");
    surface.Style().heading = HeadingLevel::Third;
    surface.Text("Heading");
    surface.EndDoc();
    EXPECT_EQ(Texts(1), "1440,1620 Heading\n");
}

TEST_F(Surface, KeepsACaptionedLineWithWhatFollowsUnlessItIsLocated) {
    const auto pageOf = [this](int linesBefore, std::string_view caption, bool isLocated) {
        document.Clear();
        surface.SetUp({.marginBottom = 15'840 - 1'440 - 240 * 10});
        surface.StartDoc();
        if (isLocated) surface.Locate(1'440, 1'440);
        for (int i = 0; i < linesBefore; ++i)
            surface.Text("x");
        surface.SepLine(caption);
        const int page = surface.PageCount();
        surface.EndDoc();
        return page;
    };
    surface.Style().fontSize = 10; // ten lines a page
    EXPECT_EQ(pageOf(6, "Caption", false), 1);
    EXPECT_EQ(pageOf(7, "Caption", false), 2);
    EXPECT_EQ(pageOf(9, "-", false), 1);
    EXPECT_EQ(pageOf(9, "Caption", true), 1) << "the author put it there";
    EXPECT_EQ(pageOf(10, "Caption", true), 2);
}

TEST_F(Surface, CutsMarginsThatLeaveNoRoom) {
    Start({.marginLeft = 20'000, .marginTop = -5, .marginRight = 20'000, .marginBottom = 0});
    EXPECT_EQ(surface.PrintWidth(), 1'440);
    EXPECT_EQ(surface.MarginTop(), 0);
    surface.Text("some words that go on");
    surface.EndDoc();
    EXPECT_EQ(document.PageCount(), 1U);
}

TEST_F(Surface, SetsACaptionIntoASeparatorLine) {
    Start();
    surface.SepLine("Rent");
    surface.SepLine(" - ");
    surface.SepLine("");
    surface.EndDoc();
    EXPECT_EQ(DescribePage(document.Page(0)),
              "page 12240x15840\n"
              "line 1440,1560 1800,1560 pen 10 #000000\n"
              "text 1900,1620-2300 face 0 10pt #000000 \"Rent\"\n"
              "line 2400,1560 10800,1560 pen 10 #000000\n"
              "line 1440,1800 10800,1800 pen 10 #000000\n"
              "line 1440,2040 1800,2040 pen 10 #000000\n"
              "line 2000,2040 10800,2040 pen 10 #000000\n");
}

TEST_F(Surface, SharesTheWidthThatIsLeftAndScalesWhatIsTooWide) {
    surface.Style().cellInset = 0;
    Start();
    Table("<2000|>20%|<|>1in", "", {{"a", "b", "c", "d"}}); // 9360: 2000, 1872, 4048, 1440
    Table("<9360|<9360", "", {{"wide", "also"}});           // half of each, text too
    surface.EndDoc();
    EXPECT_EQ(Texts(0),
              "1440,1620 a\n5212,1620 b\n5312,1620 c\n10700,1620 d\n"
              "1440,1770 wide\n6120,1770 also\n");
}

TEST_F(Surface, AlignsDecimalPointsAndWrapsOrCutsCells) {
    surface.Style().cellInset = 0;
    Start();
    surface.StartTable();
    surface.AddTable(">1000|<~800|<800", "Due|Cut|Wrap",
                     "12.00|abcdefghij|abc def;(12.00)|x|y;7|z");
    surface.Table().columns[0].alignCurrency = true;
    surface.EndTable();
    surface.EndDoc();
    EXPECT_EQ(Texts(0),
              "2140,1620 Due\n2440,1620 Cut\n3240,1620 Wrap\n"
              "1840,1860 12.00\n2440,1860 abcdefg\u2026\n3240,1860 abc def\n"
              "1740,2100 (12.00)\n2440,2100 x\n3240,2100 y\n"
              "1940,2340 7\n2440,2340 z\n");
}

TEST_F(Surface, RepeatsTheHeaderAndNeverTearsARow) {
    Start(SixLines());
    surface.Text("above");
    Table("<1500", "Name", {{"one"}, {"two"}, {"three lines of words right here"}, {"last"}},
          TableBorder::BelowHeader);
    surface.EndDoc();
    ASSERT_EQ(document.PageCount(), 2U);
    EXPECT_EQ(Texts(0), "1440,1620 above\n1520,1860 Name\n1520,2100 one\n1520,2340 two\n");
    EXPECT_EQ(Texts(1),
              "1520,1620 Name\n1520,1860 three lines\n1520,2100 of words\n"
              "1520,2340 right here\n1520,2580 last\n");
    EXPECT_EQ(Shapes(1, PageItem::Kind::Line), 1U);
}

TEST_F(Surface, TakesTheHeaderAlongToTheFirstRow) {
    Start(SixLines());
    for (int i = 0; i < 5; ++i)
        surface.Text("above");
    Table("<1500", "Name", {{"one"}});
    surface.EndDoc();
    ASSERT_EQ(document.PageCount(), 2U);
    EXPECT_EQ(Texts(1), "1520,1620 Name\n1520,1860 one\n");
}

TEST_F(Surface, KeepsAFewSumsOnOnePage) {
    Start(SixLines());
    for (int i = 0; i < 4; ++i)
        surface.Text("above");
    Table("<1500", "", {{"in"}, {"out"}, {"net"}});
    for (int i = 0; i < 2; ++i)
        surface.Text("below");
    Table("<1500", "", {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}});
    surface.EndDoc();
    EXPECT_EQ(Texts(0), "1440,1620 above\n1440,1860 above\n1440,2100 above\n1440,2340 above\n");
    EXPECT_EQ(Texts(1),
              "1520,1620 in\n1520,1860 out\n1520,2100 net\n"
              "1440,2340 below\n1440,2580 below\n1520,2820 1\n");
}

TEST_F(Surface, BreaksARowThatIsTallerThanAPageBetweenItsLines) {
    Start(SixLines());
    Table("<1500|<1500", "A|B", {{"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12", "x"}}, TableBorder::Box);
    surface.EndDoc();
    ASSERT_EQ(document.PageCount(), 3U);
    EXPECT_EQ(Texts(1),
              "1520,1620 A\n3020,1620 B\n1520,1860 6\n1520,2100 7\n1520,2340 8\n"
              "1520,2580 9\n1520,2820 10\n");
    EXPECT_EQ(Shapes(2, PageItem::Kind::Line), 4U);
}

TEST_F(Surface, DrawsEachBorder) {
    const std::vector<std::pair<TableBorder, std::size_t>> cases = {
        {TableBorder::None, 0},         {TableBorder::Bottom, 1},      {TableBorder::Top, 1},
        {TableBorder::TopBottom, 2},    {TableBorder::Box, 4},         {TableBorder::Columns, 1},
        {TableBorder::ColTopBottom, 3}, {TableBorder::BelowHeader, 1}, {TableBorder::BoxRows, 6},
        {TableBorder::BoxColumns, 5},   {TableBorder::All, 7}};
    for (const auto& [border, lines] : cases) {
        PrintedDocument pages;
        PrintSurface one(metrics, &pages, nullptr);
        one.StartDoc();
        one.StartTable();
        one.AddTable("<1000|<1000", "A|B", "1|2;3|4");
        one.Table().border = border;
        one.EndTable();
        one.EndDoc();
        std::size_t count = 0;
        const PrintedPage first = pages.Page(0);
        for (const PageItem& item : first.Items())
            count += item.kind == PageItem::Kind::Line;
        EXPECT_EQ(count, lines) << "border " << static_cast<int>(border);
    }
}

TEST_F(Surface, SurvivesTablesOfEveryShape) {
    Start();
    Table("", "", {});
    Table("<", "Only titles", {});
    std::string format;
    std::vector<std::string> cells;
    for (int i = 0; i < 300; ++i) {
        format += "<0|";
        cells.emplace_back(60, 'w');
    }
    surface.StartTable();
    surface.AddTableArray(format, cells, std::make_unique<HeldRows>(std::vector{cells, cells}));
    surface.EndTable();
    Table("<1000", "", {{"a", "not shown"}, {}});
    surface.Text(std::string(100'000, 'x') + "\xFF\xC3 \x01\x7F");
    surface.EndDoc();
    for (std::size_t i = 0; i < document.PageCount(); ++i) {
        const PrintedPage page = document.Page(i);
        for (const PageItem& item : page.Items()) {
            ASSERT_GE(item.x1, 1'440);
            ASSERT_LE(item.x2, 10'800 + 200) << i; // a letter that is wider than its column
            ASSERT_LE(item.y1, 14'400);
        }
    }
}

TEST_F(Surface, FindsTextForwardsAndBackwardsRoundTheEnd) {
    Start();
    surface.Text("Rent of Elm");
    surface.Text("no match");
    surface.NewPage();
    surface.Text("current RENT");
    surface.EndDoc();
    const auto next = [&](const PageMatch& from, SearchDirection direction) {
        return SearchPages(document, "rent", from, direction).value();
    };
    PageMatch start;
    start.isStart = true;
    const PageMatch first = next(start, SearchDirection::Forward);
    EXPECT_EQ(first, (PageMatch{.page = 0, .item = 0, .begin = 0, .length = 4}));
    const PageMatch second = next(first, SearchDirection::Forward);
    EXPECT_EQ(second, (PageMatch{.page = 1, .item = 0, .begin = 3, .length = 4}));
    const PageMatch third = next(second, SearchDirection::Forward);
    EXPECT_EQ(third, (PageMatch{.page = 1, .item = 0, .begin = 8, .length = 4}));
    EXPECT_EQ(next(third, SearchDirection::Forward), first);
    EXPECT_EQ(next(first, SearchDirection::Backward), third);
    EXPECT_EQ(next(third, SearchDirection::Backward), second);
    EXPECT_FALSE(SearchPages(document, "absent", first, SearchDirection::Forward));
    EXPECT_FALSE(SearchPages(document, "", first, SearchDirection::Forward));
}

TEST_F(Surface, EndsWhenThePagesAreNoLongerWanted) {
    struct Full : PageSink {
        void BeginPages(const DocumentInfo&) override {}
        void AddPage(PrintedPage) override { throw Error("The disk is full."); }
        void EndPages() override {}
    } full;
    PrintSurface stopped(metrics, &full, nullptr);
    stopped.StartDoc();
    EXPECT_THROW(stopped.NewPage(), Error);
}

} // namespace
} // namespace platform
