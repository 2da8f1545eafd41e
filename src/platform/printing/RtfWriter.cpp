#include "platform/printing/RtfWriter.h"

#include <fmt/core.h>

#include <algorithm>

#include "platform/printing/RtfText.h"
#include "platform/printing/WholeText.h"

namespace platform {

namespace {

constexpr Twips kCellGap = 80; ///< between a cell's edge and its text

std::string_view AlignWord(TextAlign align) {
    if (align == TextAlign::Right) return "\\qr";
    return align == TextAlign::Center ? "\\qc" : "\\ql";
}

/// The edges of a cell that have a line.
struct CellEdges {
    bool top;
    bool bottom;
    bool left;
    bool right;
};

/// Returns the size in half points at which an amount or a day fits into a cell; 0 if it fits at
/// the table's own size. Its continuation in a second line would be misread. Its width is
/// estimated, since there is no font to measure with.
int AmountSize(std::string_view text, Twips room, double usual) {
    constexpr double kDigit = 0.56; // of an em
    constexpr int kLeast = 2;
    const double width = kDigit * static_cast<double>(text.size()) * usual * kTwipsPerPoint;
    if (width <= room || !StaysInOneLine(text)) return 0;
    return std::max(static_cast<int>(2 * usual * room / width), kLeast);
}

std::string EdgeWords(const CellEdges& edges) {
    std::string words;
    if (edges.top) words += "\\clbrdrt\\brdrs\\brdrw10";
    if (edges.left) words += "\\clbrdrl\\brdrs\\brdrw10";
    if (edges.bottom) words += "\\clbrdrb\\brdrs\\brdrw10";
    if (edges.right) words += "\\clbrdrr\\brdrs\\brdrw10";
    return words;
}

} // namespace

int RtfWriter::FontIndex(const std::string& name) {
    const auto found = std::ranges::find(fonts_, name);
    const auto index = found - fonts_.begin();
    if (found == fonts_.end()) fonts_.push_back(name);
    return static_cast<int>(index);
}

/// Returns the number of a colour in the colour table; 0 is the reader's own text colour.
int RtfWriter::ColorIndex(PrintColor color) {
    const auto found = std::ranges::find(colors_, color);
    const auto index = found - colors_.begin();
    if (found == colors_.end()) colors_.push_back(color);
    return static_cast<int>(index) + 1;
}

std::string RtfWriter::FontWords(const PrintStyle& style) {
    return fmt::format("\\plain\\f{}\\fs{:.0f}{}{}{}\\cf{} ", FontIndex(style.fontName),
                       std::clamp(style.fontSize, 1.0, 1000.0) * 2, style.fontBold ? "\\b" : "",
                       style.fontItalic ? "\\i" : "", style.fontUnderline ? "\\ul" : "",
                       ColorIndex(style.textColor));
}

void RtfWriter::BeginFlow(const DocumentInfo& info) {
    info_ = info;
    FontIndex(info.frame.style.fontName);
}

void RtfWriter::Paragraph(const PrintStyle& style, std::string_view text) {
    out_ += fmt::format("\\pard{}\\sb{}\\sa{}\\li{}{}", AlignWord(style.align), style.spaceBefore,
                        style.spaceAfter, style.indentLeft,
                        style.heading != HeadingLevel::None ? "\\keepn" : "");
    out_ += FontWords(style);
    AppendRtf(out_, text);
    out_ += "\\par\n";
    FlushIfLarge();
}

std::string RtfWriter::RowStart(bool isLast) const {
    const BorderLines lines = LinesOf(table_.border);
    const bool isHeader = row_.isHeader;
    std::string words = fmt::format("\\trowd\\trgaph{}\\trleft0\\trkeep", kCellGap);
    if (isHeader) words += "\\trhdr";
    Twips edge = 0;
    for (std::size_t i = 0; i < widths_.size(); ++i) {
        words += EdgeWords({
            .top = row_.isFirst && lines.top,
            .bottom = (isLast && lines.bottom) || (isHeader && lines.belowHeader) ||
                      (!isHeader && !isLast && lines.rows),
            .left = i == 0 ? lines.sides : lines.columns,
            .right = i + 1 == widths_.size() && lines.sides,
        });
        if (isHeader && table_.header.vertical == VerticalAlign::Middle) words += "\\clvertalc";
        if (isHeader && headerColor_ > 0) words += fmt::format("\\clcbpat{}", headerColor_);
        edge += std::max(widths_[i], 1);
        words += fmt::format("\\cellx{}", edge);
    }
    return words + "\n";
}

void RtfWriter::BeginTable(const PrintStyle& style, const PrintTable& table,
                           std::span<const Twips> widths) {
    const auto cellStart = [&](const TableColumn& column, bool bold) {
        PrintStyle text = style;
        text.fontBold = style.fontBold || bold;
        const TextAlign align = column.alignCurrency ? TextAlign::Right : column.align;
        return fmt::format("\\pard\\intbl{}\\sb{}\\sa{}", AlignWord(align), style.spaceBefore,
                           style.spaceAfter) +
               FontWords(text);
    };
    table_ = table;
    widths_.assign(widths.begin(), widths.end());
    headerColor_ = table.header.background ? ColorIndex(*table.header.background) : 0;
    row_ = {.isFirst = true};
    if (!table.header.cells.empty()) {
        row_.isHeader = true;
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            row_.cells += cellStart(table.columns[i], table.header.bold) + "\\keepn ";
            if (i < table.header.cells.size()) AppendRtf(row_.cells, table.header.cells[i]);
            row_.cells += "\\cell\n";
        }
    }
    columns_.clear();
    for (const TableColumn& column : table.columns) {
        columns_.push_back({cellStart(column, column.bold), column.alignCurrency});
    }
    innerStart_.clear();
    fontSize_ = style.fontSize;
    // A bracket is a third of an em wide.
    currencyIndent_ = static_cast<int>(style.fontSize * kTwipsPerPoint / 3);
}

/// A row is written once it is known whether another follows, because the lower edge of the last
/// row differs.
void RtfWriter::WriteRow(bool isLast) {
    if (row_.cells.empty()) return;
    const bool isInner = !row_.isFirst && !row_.isHeader && !isLast;
    if (isInner && innerStart_.empty()) innerStart_ = RowStart(isLast);
    out_ += isInner ? innerStart_ : RowStart(isLast);
    out_ += row_.cells;
    out_ += "\\row\n";
    row_.cells.clear();
    row_.isFirst = false;
    row_.isHeader = false;
}

void RtfWriter::TableRow(std::span<const std::string_view> cells) {
    WriteRow(false);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        row_.cells += columns_[i].start;
        if (columns_[i].alignCurrency && !cells[i].ends_with(')')) {
            row_.cells += fmt::format("\\ri{} ", currencyIndent_);
        }
        if (const int size = AmountSize(cells[i], widths_[i] - 2 * kCellGap, fontSize_); size > 0)
            row_.cells += fmt::format("\\fs{} ", size);
        AppendRtf(row_.cells, cells[i]);
        row_.cells += "\\cell\n";
    }
    FlushIfLarge();
}

/// A paragraph of almost no height separates two tables. Word processors also need one after a
/// table at the end of the document.
void RtfWriter::EndTable() {
    WriteRow(true);
    out_ += "\\pard\\plain\\sl-20\\slmult0\\fs2\\par\n";
}

void RtfWriter::Rule(const PrintStyle& style, std::string_view caption) {
    out_ += fmt::format("\\pard\\sb{}\\sa{}{}\\brdrb\\brdrs\\brdrw{}\\brdrcf{}", style.spaceBefore,
                        style.spaceAfter, caption.empty() ? "" : "\\keepn",
                        std::clamp(style.penWidth, 1, 75), ColorIndex(style.penColor));
    out_ += FontWords(style);
    AppendRtf(out_, caption);
    out_ += "\\par\n";
    FlushIfLarge();
}

std::string RtfWriter::FrameGroup(std::string_view word, const FrameLine& line) {
    if (line.IsEmpty()) return "";
    const Twips width = info_.setup.PrintWidth();
    std::string group = fmt::format("{{\\{}\\pard\\tqc\\tx{}\\tqr\\tx{}", word, width / 2, width);
    group += FontWords(info_.frame.style);
    AppendRtfWithPageNumber(group, line.left);
    group += "\\tab ";
    AppendRtfWithPageNumber(group, line.center);
    group += "\\tab ";
    AppendRtfWithPageNumber(group, line.right);
    return group + "\\par}\n";
}

void RtfWriter::WriteHead() {
    // These groups come first because they add fonts and colours.
    const std::string frame =
        FrameGroup("header", info_.frame.header) + FrameGroup("footer", info_.frame.footer);
    std::string head = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\n{\\fonttbl";
    for (std::size_t i = 0; i < fonts_.size(); ++i) {
        head += fmt::format("{{\\f{}\\fnil ", i);
        AppendRtfName(head, fonts_[i]);
        head += ";}";
    }
    head += "}\n{\\colortbl;";
    for (const PrintColor color : colors_) {
        head += fmt::format("\\red{}\\green{}\\blue{};", color & 0xFFU, color >> 8U & 0xFFU,
                            color >> 16U & 0xFFU);
    }
    head += "}\n{\\info{\\title ";
    AppendRtf(head, info_.name);
    head += "}{\\author ";
    AppendRtf(head, info_.author);
    head += "}{\\subject ";
    AppendRtf(head, info_.subject);
    head += "}}\n";
    const PageSetup& setup = info_.setup;
    head += fmt::format("\\paperw{}\\paperh{}\\margl{}\\margr{}\\margt{}\\margb{}{}\n",
                        setup.PageWidth(), setup.PageHeight(), setup.marginLeft, setup.marginRight,
                        setup.marginTop, setup.marginBottom,
                        setup.orientation == PageOrientation::Landscape ? "\\landscape" : "");
    sink_.Write(head + frame);
}

void RtfWriter::EndFlow() {
    body_.Write(out_);
    out_.clear();
    WriteHead();
    body_.CopyTo(sink_);
    sink_.Write("}\n");
}

void RtfWriter::FlushIfLarge() {
    if (out_.size() < kBytesAtOnce) return;
    body_.Write(out_);
    out_.clear();
}

} // namespace platform
