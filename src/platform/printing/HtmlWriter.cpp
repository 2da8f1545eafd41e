#include "platform/printing/HtmlWriter.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>

#include "platform/printing/Unicode.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

constexpr std::string_view kStyleSheet =
    "html{-webkit-text-size-adjust:100%}"
    "body{font-family:Arial,'Liberation Sans',Helvetica,sans-serif;margin:1.5em auto;"
    "max-width:75em;padding:0 1em;color:#000;background:#fff;line-height:1.3;"
    "overflow-wrap:anywhere}"
    "p,h1,h2,h3{margin:.4em 0}"
    "div{overflow-x:auto;margin:.6em 0}"
    "table{border-collapse:collapse;width:100%}"
    "th,td{padding:.15em .4em;text-align:left;vertical-align:top;overflow-wrap:normal}"
    "td{white-space:pre-line}"
    ".r{text-align:right;font-variant-numeric:tabular-nums}.c{text-align:center}.b{font-weight:"
    "bold}"
    ".m{padding-right:.75em}td.n{white-space:pre}"
    ".box{border:1px solid}.top{border-top:1px solid}.bottom{border-bottom:1px solid}"
    ".cols td,.cols th{border-left:1px solid}"
    ".cols td:first-child,.cols th:first-child{border-left:0}"
    ".rows tr{border-bottom:1px solid}.below thead{border-bottom:1px solid}"
    "hr{border:0;border-top:1px solid}"
    "header,footer{color:#555;font-size:.85em;display:flex;justify-content:space-between;gap:1em}"
    "@media(max-width:40em){body{margin:.5em 0;padding:0 .6em}th,td{padding:.15em .25em}}"
    "@media print{div{overflow:visible}table{min-width:0!important}"
    "thead{display:table-header-group}"
    "tr{break-inside:avoid}}";

/// Bytes that need no escape in HTML.
constexpr std::array<bool, 256> kPlain = [] {
    std::array<bool, 256> plain{};
    for (std::size_t c = 0x20; c < 0x7F; ++c)
        plain[c] = c != '&' && c != '<' && c != '>' && c != '"';
    return plain;
}();

void EscapeOdd(std::string& out, std::string_view text, std::string_view lineEnd) {
    std::string cleaned;
    for (const char c : CleanText(text, cleaned)) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\n':
                out += lineEnd;
                break;
            default:
                out += c;
        }
    }
}

void Escape(std::string& out, std::string_view text, std::string_view lineEnd = "<br>") {
    const bool plain =
        std::ranges::all_of(text, [](char c) { return kPlain[static_cast<unsigned char>(c)]; });
    if (plain) {
        out += text;
    } else {
        EscapeOdd(out, text, lineEnd);
    }
}

std::string Color(PrintColor color) {
    return fmt::format("#{:02x}{:02x}{:02x}", color & 0xFFU, color >> 8U & 0xFFU,
                       color >> 16U & 0xFFU);
}

/// Returns the attributes of a style that differ from the page's own, as a style attribute.
std::string StyleAttribute(const PrintStyle& style, bool isHeading) {
    std::string css = fmt::format("font-size:{:g}pt", style.fontSize);
    if (!EqualIgnoringCase(style.fontName, "Arial")) {
        css += ";font-family:'";
        for (const char c : style.fontName) {
            if (c != '\'' && c != '\\' && static_cast<unsigned char>(c) >= 0x20U) css += c;
        }
        css += "',Arial,sans-serif";
    }
    if (style.fontBold != isHeading)
        css += style.fontBold ? ";font-weight:bold" : ";font-weight:normal";
    if (style.fontItalic) css += ";font-style:italic";
    if (style.fontUnderline) css += ";text-decoration:underline";
    if (style.textColor != kBlack) css += ";color:" + Color(style.textColor);
    if (style.align == TextAlign::Right) css += ";text-align:right";
    if (style.align == TextAlign::Center) css += ";text-align:center";
    if (style.indentLeft > 0) css += fmt::format(";margin-left:{:g}pt", style.indentLeft / 20.0);
    std::string attribute = " style=\"";
    Escape(attribute, css);
    return attribute + '"';
}

std::string_view TagOf(HeadingLevel level) {
    switch (level) {
        case HeadingLevel::First:
            return "h1";
        case HeadingLevel::Second:
            return "h2";
        case HeadingLevel::Third:
            return "h3";
        case HeadingLevel::None:
            break;
    }
    return "p";
}

std::string BorderClasses(TableBorder border) {
    const BorderLines lines = LinesOf(border);
    std::string names;
    if (lines.sides) names += " box";
    if (lines.belowHeader) names += " below";
    if (lines.rows) names += " rows";
    if (lines.columns) names += " cols";
    if (lines.top && !lines.sides) names += " top";
    if (lines.bottom && !lines.sides) names += " bottom";
    return names.empty() ? names : names.substr(1);
}

enum class CellKind { Header, Body, Amount, NegativeAmount };

std::string ClassAttribute(const TableColumn& column, CellKind kind) {
    const bool isAmount = kind == CellKind::Amount || kind == CellKind::NegativeAmount;
    std::string names;
    if (isAmount || column.align == TextAlign::Right) names += " r";
    if (!isAmount && column.align == TextAlign::Center) names += " c";
    // Leaves room for the bracket of a negative amount.
    if (kind == CellKind::Amount) names += " m";
    if (column.bold && kind != CellKind::Header) names += " b";
    if (column.wrap == Wrap::Ellipsis) names += " n";
    if (names.empty()) return names;
    return " class=\"" + names.substr(1) + '"';
}

/// Adds a part of the header or footer, unless it has a page number.
void AppendFramePart(std::string& out, const std::string& part) {
    if (part.find("%d") != std::string::npos) return;
    out += "<span>";
    Escape(out, part);
    out += "</span>";
}

std::string FrameElement(std::string_view tag, const FrameLine& line) {
    std::string parts;
    AppendFramePart(parts, line.left);
    AppendFramePart(parts, line.center);
    AppendFramePart(parts, line.right);
    if (parts.empty() || line.IsEmpty()) return "";
    return fmt::format("<{0}>{1}</{0}>\n", tag, parts);
}

/// Returns the width in em at which each column of amounts is as wide as its amounts need; 0 for
/// any width. A table of many columns is moved sideways on a phone; its totals, which are a table
/// of their own, then stay below their columns. A table of few columns fits better if it is as wide
/// as its texts need.
double LeastWidth(const PrintTable& table, std::span<const Twips> widths, double sum) {
    constexpr std::size_t kManyColumns = 7;
    constexpr double kAmount = 6; // "12,345.00" in bold and the room beside it
    constexpr double kMostPerColumn = 8;
    double least = 0;
    if (widths.size() < kManyColumns) return least;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const TableColumn& column = table.columns[i];
        const bool isAmount = column.alignCurrency || column.align == TextAlign::Right;
        if (isAmount && widths[i] > 0) least = std::max(least, kAmount * sum / widths[i]);
    }
    return std::min(least, kMostPerColumn * static_cast<double>(widths.size()));
}

} // namespace

void HtmlWriter::BeginFlow(const DocumentInfo& info) {
    out_ =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
    const std::size_t title = out_.size();
    Escape(out_, info.name, " ");
    // A title may not be empty.
    if (Trim(std::string_view(out_).substr(title)).empty()) out_ += "Report";
    out_ += "</title>\n<style>";
    out_ += kStyleSheet;
    out_ += "</style>\n</head>\n<body>\n";
    printWidth_ = info.setup.PrintWidth();
    out_ += FrameElement("header", info.frame.header);
    footer_ = FrameElement("footer", info.frame.footer);
}

void HtmlWriter::Paragraph(const PrintStyle& style, std::string_view text) {
    // An empty line is only a gap, and the style sheet has its own gaps.
    if (Trim(text).empty()) return;
    const std::string_view tag = TagOf(style.heading);
    out_ += '<';
    out_ += tag;
    out_ += StyleAttribute(style, style.heading != HeadingLevel::None);
    out_ += '>';
    Escape(out_, text);
    out_ += "</";
    out_ += tag;
    out_ += ">\n";
    FlushIfLarge();
}

void HtmlWriter::BeginTable(const PrintStyle& style, const PrintTable& table,
                            std::span<const Twips> widths) {
    double sum = 0;
    for (const Twips width : widths)
        sum += width;
    std::string attributes = StyleAttribute(style, false);
    if (const double least = LeastWidth(table, widths, sum); least > 0) {
        attributes.pop_back();
        attributes += fmt::format(";min-width:{:.0f}em\"", least);
    }
    // A narrow table stays narrow if there is room.
    if (const double share = sum / std::max(printWidth_, 1); share < 0.95) {
        attributes.pop_back();
        attributes += fmt::format(";width:{:.0f}%;min-width:min(100%,25em)\"", share * 100);
    }
    const std::string border = BorderClasses(table.border);
    if (!border.empty()) attributes += fmt::format(" class=\"{}\"", border);
    out_ += fmt::format("<div><table{}>\n<colgroup>", attributes);
    for (const Twips width : widths) {
        out_ += fmt::format("<col style=\"width:{:.1f}%\">", sum > 0 ? width * 100 / sum : 0);
    }
    out_ += "</colgroup>\n";
    columns_.clear();
    for (const TableColumn& column : table.columns) {
        const auto start = [&column](CellKind kind) {
            return "<td" + ClassAttribute(column, kind) + '>';
        };
        const std::string body = start(column.alignCurrency ? CellKind::Amount : CellKind::Body);
        columns_.push_back({body, column.alignCurrency ? start(CellKind::NegativeAmount) : body});
    }
    if (!table.header.cells.empty()) WriteHeader(table);
    out_ += "<tbody>\n";
}

void HtmlWriter::WriteHeader(const PrintTable& table) {
    out_ += "<thead>\n<tr";
    if (table.header.background) {
        out_ += " style=\"background:" + Color(*table.header.background) + '"';
    }
    out_ += '>';
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        out_ += "<th" + ClassAttribute(table.columns[i], CellKind::Header);
        if (!table.header.bold) out_ += " style=\"font-weight:normal\"";
        out_ += '>';
        if (i < table.header.cells.size()) Escape(out_, table.header.cells[i]);
        out_ += "</th>";
    }
    out_ += "</tr>\n</thead>\n";
}

void HtmlWriter::TableRow(std::span<const std::string_view> cells) {
    out_ += "<tr>";
    for (std::size_t i = 0; i < cells.size(); ++i) {
        out_ += cells[i].ends_with(')') ? columns_[i].bracketStart : columns_[i].start;
        Escape(out_, cells[i], "\n");
        out_ += "</td>";
    }
    out_ += "</tr>\n";
    FlushIfLarge();
}

void HtmlWriter::EndTable() {
    out_ += "</tbody>\n</table></div>\n";
}

void HtmlWriter::Rule(const PrintStyle& style, std::string_view caption) {
    Paragraph(style, caption);
    out_ += "<hr>\n";
}

void HtmlWriter::EndFlow() {
    out_ += footer_ + "</body>\n</html>\n";
    sink_.Write(out_);
    out_.clear();
}

void HtmlWriter::FlushIfLarge() {
    if (out_.size() < kBytesAtOnce) return;
    sink_.Write(out_);
    out_.clear();
}

} // namespace platform
