#include "reports/ReportStyles.h"

namespace reports {

using platform::HeadingLevel;
using platform::kTwipsPerPoint;
using platform::PrintStyle;

namespace {

constexpr platform::PrintColor kNavy = 0x800000;
constexpr platform::PrintColor kPlum = 0x400040;

constexpr platform::Twips Points(int points) {
    return points * kTwipsPerPoint;
}

PrintStyle InFont(PrintStyle style, const char* name, int size) {
    style.fontName = name;
    style.fontSize = size;
    style.textColor = platform::kBlack;
    return style;
}

PrintStyle Heading(PrintStyle style, HeadingLevel level) {
    style.fontBold = true;
    style.fontItalic = false;
    style.textColor = kNavy;
    style.heading = level;
    return style;
}

} // namespace

void CreateStyles(platform::PrintSurface& page) {
    platform::PrintStyles& styles = page.Styles();
    const PrintStyle base = page.Style();
    styles.Add("Default", base);

    PrintStyle normal = InFont(base, "Tahoma", 16);
    normal.indentLeft = platform::kTwipsPerInch / 2;
    normal.spaceAfter = Points(8);
    styles.Add("Normal", normal);

    for (const auto& [name, size] : {std::pair("Title", 24), std::pair("DocTitle", 18)}) {
        PrintStyle title = Heading(InFont(base, "Tahoma", size), HeadingLevel::First);
        title.spaceAfter = Points(12);
        styles.Add(name, title);
    }

    PrintStyle table = InFont(base, "Arial", 8);
    table.spaceBefore = Points(1);
    table.spaceAfter = Points(1);
    table.cellInset = Points(4);
    styles.Add("Table", table);
    styles.Add("TableGroupHeader", Heading(table, HeadingLevel::Third));
    PrintStyle total = table;
    total.spaceBefore = Points(3);
    total.textColor = kNavy;
    styles.Add("TableGroupTotal", total);

    PrintStyle section = Heading(InFont(base, "Arial", 12), HeadingLevel::Second);
    section.spaceBefore = Points(6);
    styles.Add("SectionTitle", section);

    PrintStyle line = InFont(base, "Arial", 9);
    line.fontBold = true;
    line.penColor = kPlum;
    line.textColor = kPlum;
    line.penWidth = 10;
    styles.Add("SepLine", line);

    styles.Add("Info", InFont(base, "Arial", 12));
    styles.Add("Info10", InFont(base, "Arial", 10));
    styles.Add("TinyText", InFont(base, "Arial", 8));
}

} // namespace reports
