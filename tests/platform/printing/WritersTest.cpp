#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>

#include "SampleReport.h"
#include "platform/printing/DocumentFlow.h"
#include "platform/printing/HtmlWriter.h"
#include "platform/printing/PackPage.h"
#include "platform/printing/PrintedDocument.h"
#include "platform/printing/RtfWriter.h"
#include "platform/printing/TextWriter.h"
#include "platform/system/Paths.h"
#include "support/Golden.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

/// The text that a writer gives a drawing.
template <typename Writer>
std::string By(const std::function<void(PrintSurface&)>& draw) {
    StringSink sink;
    Writer writer(sink);
    FixedMetrics metrics;
    PrintSurface surface(metrics, nullptr, &writer);
    draw(surface);
    return sink.Text();
}

void Sample(PrintSurface& surface) {
    testing::AddSampleStyles(surface);
    testing::DrawSample(surface);
}

TEST(Writers, MakeTheSampleOfEachKind) {
    support::ExpectGolden("sample.html", By<HtmlWriter>(Sample));
    support::ExpectGolden("sample.rtf", By<RtfWriter>(Sample));
    support::ExpectGolden("sample.txt", By<TextWriter>(Sample));
    FixedMetrics metrics;
    PrintedDocument document;
    PrintSurface surface(metrics, &document, nullptr);
    Sample(surface);
    std::string pages;
    for (std::size_t i = 0; i < document.PageCount(); ++i)
        pages += DescribePage(document.Page(i));
    support::ExpectGolden("sample.pages", pages);
}

TEST(PackPage, GivesBackWhatWasPacked) {
    struct Check : PageSink {
        void BeginPages(const DocumentInfo&) override {}
        void AddPage(PrintedPage page) override {
            const std::string packed = PackPage(page);
            EXPECT_EQ(DescribePage(UnpackPage(packed)), DescribePage(page));
            std::size_t text = 0;
            for (const PageItem& item : page.Items())
                text += item.textLength;
            EXPECT_LT((packed.size() - text) * 4, page.Items().size() * sizeof(PageItem));
        }
        void EndPages() override {}
    } check;
    FixedMetrics metrics;
    PrintSurface surface(metrics, &check, nullptr);
    Sample(surface);
    EXPECT_EQ(DescribePage(UnpackPage(PackPage({}))), "page 0x0\n");
}

TEST(Writers, WriteAHeldFlowAsTheyWriteALiveOne) {
    FixedMetrics metrics;
    DocumentFlow flow;
    PrintSurface surface(metrics, nullptr, &flow);
    Sample(surface);
    StringSink sink;
    RtfWriter writer(sink);
    flow.WriteTo(writer);
    EXPECT_EQ(sink.Text(), By<RtfWriter>(Sample));
}

/// A table of two columns, with a header row and three rows, by a writer.
template <typename Writer>
std::string TableBy(const std::function<void(PrintTable&)>& set, std::string_view header = "H|I") {
    return By<Writer>([&](PrintSurface& surface) {
        surface.StartDoc();
        surface.StartTable();
        surface.AddTable("<100|>100", header, "a|1.00;b|(2.00);c|3.00");
        set(surface.Table());
        surface.EndTable();
        surface.EndDoc();
    });
}

/// The edges with a line of each row's cells: "tl,tr/b,b" for top and left, top and right, ...
std::string EdgesInRtf(const std::string& rtf) {
    std::string edges;
    std::istringstream lines(rtf);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("\\trowd")) continue;
        if (!edges.empty()) edges += '/';
        std::string row;
        for (std::size_t at = 0; at < line.size(); ++at) {
            const std::string_view rest = std::string_view(line).substr(at);
            if (rest.starts_with("\\clbrdr")) row += rest[7];
            if (rest.starts_with("\\cellx")) row += ',';
        }
        edges += row.substr(0, row.size() - 1);
    }
    return edges;
}

TEST(Writers, DrawTheBordersInRtfAsOnThePage) {
    struct Case {
        TableBorder border;
        std::string edges;
    };
    using enum TableBorder;
    for (const auto& [border, edges] :
         {Case{None, ",/,/,/,"}, Case{Bottom, ",/,/,/b,b"}, Case{Top, "t,t/,/,/,"},
          Case{TopBottom, "t,t/,/,/b,b"}, Case{Box, "tl,tr/l,r/l,r/lb,br"},
          Case{Columns, ",l/,l/,l/,l"}, Case{ColTopBottom, "t,tl/,l/,l/b,lb"},
          Case{BelowHeader, "b,b/,/,/,"}, Case{BoxRows, "tlb,tbr/lb,br/lb,br/lb,br"},
          Case{BoxColumns, "tl,tlr/l,lr/l,lr/lb,lbr"},
          Case{All, "tlb,tlbr/lb,lbr/lb,lbr/lb,lbr"}}) {
        const auto with = [border](PrintTable& table) { table.border = border; };
        EXPECT_EQ(EdgesInRtf(TableBy<RtfWriter>(with)), edges) << static_cast<int>(border);
    }
    EXPECT_EQ(EdgesInRtf(TableBy<RtfWriter>([](PrintTable& table) { table.border = Box; }, "")),
              "tl,tr/l,r/lb,br")
        << "without a header row the first row has the upper edge";
}

TEST(Writers, KeepAColumnOfAmountsBoldInHtml) {
    const std::string html = TableBy<HtmlWriter>([](PrintTable& table) {
        table.columns[1].bold = true;
        table.columns[1].alignCurrency = true;
    });
    EXPECT_NE(html.find("<td class=\"r m b\">1.00</td>"), std::string::npos) << html;
    EXPECT_NE(html.find("<td class=\"r b\">(2.00)</td>"), std::string::npos) << html;
}

/// A table of one row without a header, by a writer.
template <typename Writer>
std::string RowBy(std::string_view format, std::string_view row) {
    return By<Writer>([&](PrintSurface& surface) {
        surface.StartDoc();
        surface.StartTable();
        surface.AddTable(format, "", row);
        surface.EndTable();
        surface.EndDoc();
    });
}

// Then the totals of a table of many months stay below their months on a phone.
TEST(Writers, KeepColumnsOfAmountsWideEnoughInHtml) {
    const auto leastWidth = [](std::string_view format, std::string_view row) {
        const std::string html = RowBy<HtmlWriter>(format, row);
        const auto at = html.find("min-width:", html.find("<table"));
        return at == std::string::npos ? std::string() : html.substr(at + 10, 4);
    };
    // Each fills the page.
    const std::string_view row = "a|1|2|3|4|5|6";
    EXPECT_EQ(leastWidth("<3120|>2600|>2600|>2600|>2600|>2600|>2600", row), "43em");
    EXPECT_EQ(leastWidth("<17520|>200|>200|>200|>200|>200|>200", row), "56em") << "8 em a column";
    EXPECT_EQ(leastWidth("<3120|<2600|<2600|<2600|<2600|<2600|<2600", row), "") << "texts wrap";
    EXPECT_EQ(leastWidth("<8720|>2000|>2000|>2000|>2000|>2000", "a|1|2|3|4|5"), "") << "they fit";
}

TEST(Writers, KeepDaysAndAmountsWholeInText) {
    const std::string text = RowBy<TextWriter>("<800|<800|>300", "05/17/2024|12,345,678.00|1");
    EXPECT_NE(text.find("05/17/2024  12,345,678.00             1\n"), std::string::npos) << text;
}

TEST(OutputFile, TakesItsNameOnlyWhenItIsWhole) {
    const fs::path folder = fs::temp_directory_path() / "vestrel-output-test";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const fs::path path = folder / "report.txt";
    {
        OutputFile file(path);
        file.Write("first");
        file.Commit();
    }
    {
        OutputFile file(path);
        file.Write("second, given up");
    }
    EXPECT_EQ(ReadWholeFile(path), "first");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
    EXPECT_THROW(OutputFile(folder / "no folder" / "x"), std::exception);
    OutputFile full("/dev/full");
    full.Write("lost");
    EXPECT_THROW(full.Commit(), std::exception);
    fs::remove_all(folder);
}

} // namespace
} // namespace platform
