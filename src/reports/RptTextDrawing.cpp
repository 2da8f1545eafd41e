// The commands of a [TEXT] section that draw text: paragraphs, separator lines and tables.

#include "platform/values/Conversions.h"
#include "reports/clsRptText.h"

namespace reports {

namespace {

platform::PrintColor ColorOf(const std::string& number) {
    constexpr std::uint32_t kColorBits = 0xFFFFFF;
    return static_cast<std::uint32_t>(platform::StrToInt32(number)) & kColorBits;
}

void ApplyAttributesOf(const TextCommand& command, platform::PrintStyle& style) {
    if (!command.FontName.empty()) style.fontName = command.FontName;
    if (command.FontSize > 0) style.fontSize = command.FontSize;
    style.fontBold = command.FontBold;
    style.fontItalic = command.FontItalic;
    style.fontUnderline = command.FontUnderline;
    if (!command.TextColor.empty()) style.textColor = ColorOf(command.TextColor);
    if (command.PenWidth > 0) style.penWidth = command.PenWidth;
    if (!command.PenColor.empty()) style.penColor = ColorOf(command.PenColor);
    if (command.FillColor.empty()) {
        style.brushStyle = platform::BrushStyle::Transparent;
    } else {
        style.brushColor = ColorOf(command.FillColor);
        style.brushStyle = platform::BrushStyle::Solid;
    }
}

} // namespace

void clsRptText::Draw(const TextCommand& command, platform::PrintSurface& page) const {
    switch (command.Kind) {
        case TextCommandKind::Sql:
        case TextCommandKind::Calc:
            return;
        case TextCommandKind::Paragraph:
        case TextCommandKind::SepLine:
            page.ApplyStyle("Default");
            ApplyAttributesOf(command, page.Style());
            if (command.Kind == TextCommandKind::Paragraph) {
                page.Text(Expand(command.Text));
            } else {
                page.SepLine(Expand(command.Text));
            }
            return;
        case TextCommandKind::Table:
            page.ApplyStyle("Table");
            ApplyAttributesOf(command, page.Style());
            DrawTable(command, page);
            return;
        case TextCommandKind::Line:
        case TextCommandKind::Box:
            ApplyAttributesOf(command, page.Style());
            DrawShape(command, page);
            return;
        case TextCommandKind::Locate:
        case TextCommandKind::Grid:
            DrawShape(command, page);
            return;
    }
}

void clsRptText::DrawTable(const TextCommand& command, platform::PrintSurface& page) const {
    page.StartTable();
    page.AddTable(command.TableFormat, command.TableHeader, Expand(command.Text));
    ApplyAttributes(page.Table(), command.Table, ColWrap);
    page.EndTable();
}

} // namespace reports
