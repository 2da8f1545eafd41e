#include "platform/printing/RtfWriter.h"

#include <fmt/core.h>

#include <algorithm>

#include "platform/printing/RtfText.h"

namespace platform {

namespace {

constexpr std::size_t kPart = 32'768;

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

CellEdges EdgesOf(TableBorder border, bool header, bool first, bool last) {
    switch (border) {
        case TableBorder::None:
            return {false, false, false, false};
        case TableBorder::BelowHeader:
            return {false, header, false, false};
        case TableBorder::Bottom:
            return {false, true, false, false};
        case TableBorder::Top:
            return {header, false, false, false};
        case TableBorder::TopBottom:
            return {header, true, false, false};
        case TableBorder::Box:
            return {header, true, first, last};
        case TableBorder::Columns:
            return {false, false, !first, false};
        case TableBorder::ColTopBottom:
            return {header, true, !first, false};
        case TableBorder::BoxRows:
            return {true, true, first, last};
        case TableBorder::BoxColumns:
            return {header, true, true, true};
        case TableBorder::All:
            break;
    }
    return {true, true, true, true};
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

/// 0 is the reader's own text colour.
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

std::string RtfWriter::RowStart(const PrintTable& table, std::span<const Twips> widths,
                                bool header) {
    std::string words = "\\trowd\\trgaph80\\trleft0\\trkeep";
    if (header) words += "\\trhdr";
    Twips edge = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        words += EdgeWords(EdgesOf(table.border, header, i == 0, i + 1 == widths.size()));
        if (header && table.header.vertical == VerticalAlign::Middle) words += "\\clvertalc";
        if (header && table.header.background) {
            words += fmt::format("\\clcbpat{}", ColorIndex(*table.header.background));
        }
        edge += std::max(widths[i], 1);
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
    if (!table.header.cells.empty()) {
        out_ += RowStart(table, widths, true);
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            out_ += cellStart(table.columns[i], table.header.bold);
            if (i < table.header.cells.size()) AppendRtf(out_, table.header.cells[i]);
            out_ += "\\cell\n";
        }
        out_ += "\\row\n";
    }
    rowStart_ = RowStart(table, widths, false);
    columns_.clear();
    for (const TableColumn& column : table.columns) {
        columns_.push_back({cellStart(column, column.bold), column.alignCurrency});
    }
    // A bracket is a third of an em wide.
    currencyIndent_ = static_cast<int>(style.fontSize * kTwipsPerPoint / 3);
}

void RtfWriter::TableRow(std::span<const std::string_view> cells) {
    out_ += rowStart_;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        out_ += columns_[i].start;
        if (columns_[i].alignCurrency && !cells[i].ends_with(')')) {
            out_ += fmt::format("\\ri{} ", currencyIndent_);
        }
        AppendRtf(out_, cells[i]);
        out_ += "\\cell\n";
    }
    out_ += "\\row\n";
    FlushIfLarge();
}

/// A paragraph of next to no height keeps a table from the next one, and a document from ending in
/// a table, which word processors don't accept.
void RtfWriter::EndTable() {
    out_ += "\\pard\\plain\\sl-20\\slmult0\\fs2\\par\n";
}

void RtfWriter::Rule(const PrintStyle& style, std::string_view caption) {
    out_ += fmt::format("\\pard\\sb{}\\sa{}\\brdrb\\brdrs\\brdrw{}\\brdrcf{}", style.spaceBefore,
                        style.spaceAfter, std::clamp(style.penWidth, 1, 75),
                        ColorIndex(style.penColor));
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
    // The groups are made first, for they add to the fonts and colours.
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
    if (out_.size() < kPart) return;
    body_.Write(out_);
    out_.clear();
}

} // namespace platform
