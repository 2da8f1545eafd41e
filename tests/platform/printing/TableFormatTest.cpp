#include <gtest/gtest.h>

#include "platform/printing/PrintTable.h"
#include "platform/printing/WholeText.h"

namespace platform {
namespace {

std::string Told(const TableColumn& column) {
    const char align[] = {'<', '^', '>'};
    std::string text(1, align[static_cast<int>(column.align)]);
    if (column.wrap == Wrap::Ellipsis) text += '~';
    if (column.percent > 0) return text + std::to_string(static_cast<int>(column.percent)) + "%";
    return text + std::to_string(column.width);
}

std::string Told(std::string_view format) {
    std::string text;
    for (const TableColumn& column : ParseTableFormat(format))
        text += Told(column) + " ";
    return text;
}

TEST(TableFormat, ReadsAlignmentAndWidthOfEachColumn) {
    EXPECT_EQ(Told("<2880|<"), "<2880 <0 ");
    EXPECT_EQ(Told("<20%|>20%|^1.5in"), "<20% >20% ^2160 ");
    EXPECT_EQ(Told(">~6.25% | 12pt ; "), ">~6% <240 ");
    EXPECT_EQ(Told("<0|>-5|<abc|"), "<0 >5 <0 <0 ");
    EXPECT_EQ(Told(""), "");
}

TEST(TableText, KeepsAmountsAndDaysInOneLine) {
    for (const char* whole : {"05/17/2024", "1,234.50", "(12.00)", "-5%"})
        EXPECT_TRUE(platform::StaysInOneLine(whole)) << whole;
    for (const char* text :
         {"", "05/17/20245", "5/17/2024", "05-17/2024", "12 Elm St", "05/1a/2024"})
        EXPECT_FALSE(platform::StaysInOneLine(text)) << text;
}

TEST(TableText, SplitsRowsAndCells) {
    using Rows = std::vector<std::vector<std::string>>;
    EXPECT_EQ(ParseTableText(""), Rows());
    EXPECT_EQ(ParseTableText("a|b;c|d;"), (Rows{{"a", "b"}, {"c", "d"}}));
    EXPECT_EQ(ParseTableText("a|;;|b"), (Rows{{"a", ""}, {""}, {"", "b"}}));
}

} // namespace
} // namespace platform
