#include "platform/printing/TextWriter.h"

#include <algorithm>

#include "platform/printing/FontMetrics.h"
#include "platform/printing/TextMeasure.h"
#include "platform/printing/Unicode.h"
#include "platform/printing/WholeText.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

/// The width of one character on the page.
constexpr Twips kCharacter = 100;
constexpr std::size_t kGap = 2;
/// The least width of a column of numbers, "(999,999.99)", and of any other column, which may hold
/// days.
constexpr std::size_t kNumberWidth = 12;
constexpr std::size_t kDayWidth = 10;

std::size_t CharacterCount(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

/// Measures every character as 10 twips wide.
const TextMeasure& Characters() {
    static FixedMetrics metrics;
    static const TextMeasure measure(metrics, PrintStyle{.fontSize = 1});
    return measure;
}

std::vector<std::string_view> LinesOf(std::string_view text, std::size_t width) {
    std::vector<MeasuredLine> lines;
    const auto room = static_cast<Twips>(std::max<std::size_t>(width, 1)) * 10;
    BreakLines(Characters(), text, room, lines);
    std::vector<std::string_view> texts;
    texts.reserve(lines.size());
    for (const MeasuredLine& line : lines)
        texts.push_back(line.text);
    return texts;
}

std::string Aligned(std::string_view text, TextAlign align, std::size_t width) {
    const std::size_t length = CharacterCount(text);
    const std::size_t spare = length < width ? width - length : 0;
    std::size_t before = 0;
    if (align == TextAlign::Right) before = spare;
    if (align == TextAlign::Center) before = spare / 2;
    return std::string(before, ' ') + std::string(text) + std::string(spare - before, ' ');
}

std::string FrameText(const FrameLine& line, std::size_t width) {
    const auto part = [](const std::string& text) {
        return text.find("%d") == std::string::npos ? text : std::string();
    };
    std::string out = part(line.left);
    const std::string rest =
        part(line.center) + (part(line.center).empty() ? "" : "  ") + part(line.right);
    if (rest.empty()) return out;
    const std::size_t used = CharacterCount(out) + CharacterCount(rest);
    return out + std::string(used + kGap < width ? width - used : kGap, ' ') + rest;
}

} // namespace

void TextWriter::BeginFlow(const DocumentInfo& info) {
    width_ = static_cast<std::size_t>(std::max(info.setup.PrintWidth() / kCharacter, 20));
    footer_ = info.frame.footer;
    if (const std::string header = FrameText(info.frame.header, width_); !header.empty()) {
        WriteLine(header);
        WriteLine("");
    }
}

void TextWriter::WriteLine(std::string line) {
    while (line.ends_with(' '))
        line.pop_back();
    line += '\n';
    sink_.Write(line);
}

void TextWriter::Paragraph(const PrintStyle& style, std::string_view text) {
    std::string cleaned;
    const auto indent = static_cast<std::size_t>(std::max(style.indentLeft, 0) / kCharacter);
    const std::size_t width = width_ > indent + 10 ? width_ - indent : 10;
    for (const std::string_view line : LinesOf(CleanText(text, cleaned), width)) {
        WriteLine(std::string(indent, ' ') + Aligned(line, style.align, width));
    }
}

void TextWriter::BeginTable(const PrintStyle&, const PrintTable& table,
                            std::span<const Twips> widths) {
    columns_ = table.columns;
    widths_.clear();
    Twips edge = 0;
    std::size_t last = 0;
    for (const Twips width : widths) {
        edge += width;
        const auto next = static_cast<std::size_t>(std::max(edge, 0) / kCharacter);
        const TableColumn& column = columns_[widths_.size()];
        const bool isNumber = column.alignCurrency || column.align == TextAlign::Right;
        const std::size_t share = next > last + kGap ? next - last - kGap : 1;
        // A column that is less than half as wide as a day holds no days.
        const std::size_t least = isNumber ? kNumberWidth : share < kDayWidth / 2 ? 0 : kDayWidth;
        widths_.push_back(std::max(share, least));
        last = next;
    }
    if (table.header.cells.empty()) return;
    std::vector<std::string_view> titles(table.header.cells.begin(), table.header.cells.end());
    titles.resize(columns_.size());
    WriteRow(titles, true);
    WriteLine(std::string(TableWidth(), '-'));
}

std::size_t TextWriter::TableWidth() const {
    std::size_t width = 0;
    for (const std::size_t column : widths_)
        width += column + kGap;
    return width > kGap ? width - kGap : width;
}

void TextWriter::TableRow(std::span<const std::string_view> cells) {
    WriteRow(cells, false);
}

void TextWriter::WriteRow(std::span<const std::string_view> cells, bool header) {
    std::vector<std::string> cleaned(cells.size());
    std::vector<std::vector<std::string_view>> lines;
    std::size_t count = 1;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string_view text = CleanText(cells[i], cleaned[i]);
        // An amount that is wider than its column shifts the rest of its line.
        const bool isWhole = !header && StaysInOneLine(text);
        lines.push_back(LinesOf(text, isWhole ? std::max(widths_[i], text.size()) : widths_[i]));
        count = std::max(count, lines.back().size());
    }
    for (std::size_t row = 0; row < count; ++row) {
        std::string line;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            std::string text(row < lines[i].size() ? lines[i][row] : std::string_view());
            const bool currency = columns_[i].alignCurrency && !header;
            if (currency && !text.empty() && !text.ends_with(')')) text += ' ';
            line += Aligned(text, currency ? TextAlign::Right : columns_[i].align, widths_[i]);
            line.append(kGap, ' ');
        }
        WriteLine(std::move(line));
    }
}

void TextWriter::EndTable() {}

void TextWriter::Rule(const PrintStyle&, std::string_view caption) {
    std::string cleaned;
    caption = Trim(CleanText(caption, cleaned));
    if (caption.empty()) return WriteLine(std::string(width_, '-'));
    std::string line = "--- " + std::string(caption) + ' ';
    const std::size_t length = CharacterCount(line);
    if (length < width_) line.append(width_ - length, '-');
    WriteLine(std::move(line));
}

void TextWriter::EndFlow() {
    if (const std::string footer = FrameText(footer_, width_); !footer.empty()) {
        WriteLine("");
        WriteLine(footer);
    }
}

} // namespace platform
