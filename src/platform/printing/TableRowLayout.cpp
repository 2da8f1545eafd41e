#include "platform/printing/TableRowLayout.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include <fmt/core.h>

#include "platform/printing/Unicode.h"
#include "platform/printing/WholeText.h"

namespace platform {

namespace {

/// In points. Smaller text would be unreadable; it is wrapped more often instead.
constexpr double kLeastSize = 4;
constexpr double kLeastTitleSize = 3;
/// For a text whose words are too long for its column.
constexpr double kLeastWordSize = 6;
/// For text that stays in one line however narrow its column is: it can still be read enlarged on
/// the screen, while digits over several lines are misread.
constexpr double kLeastWholeSize = 1;

double TextScale(const PrintStyle& style, double scale) {
    return std::max(scale, std::min(1.0, kLeastSize / std::max(style.fontSize, 1.0)));
}

TextInk MakeInk(FontMetrics& metrics, PrintStyle style, double scale, Weight weight) {
    if (weight == Weight::Bold) style.fontBold = true;
    return {.measure = TextMeasure(metrics, style, TextScale(style, scale)),
            .color = style.textColor,
            .underline = style.fontUnderline};
}

std::string_view WidestWord(std::string_view text, const TextMeasure& measure) {
    std::string_view widest;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find_first_of(" \n"));
        if (measure.Width(word) > measure.Width(widest)) widest = word;
        text.remove_prefix(std::min(text.size(), word.size() + 1));
    }
    return widest;
}

/// Returns the end of the word that a text begins with: at a blank, or after a hyphen between
/// letters.
std::size_t WordEnd(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == ' ' || text[at] == '\n') return at;
        const char next = at + 1 < text.size() ? text[at + 1] : ' ';
        if (text[at] == '-' && next != '-' && next != ' ' && (next < '0' || next > '9'))
            return at + 1;
    }
    return text.size();
}

/// Returns the word of the most letters, found without measuring. Returns an empty text if the word
/// is longer than any column, or if it may have letters of a script without blanks, which can be
/// broken anywhere.
std::string_view LongestWord(std::string_view text) {
    constexpr unsigned char kFirstOfThree = 0xE0; // bytes of a letter
    constexpr std::size_t kMost = 200;
    std::string_view longest;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, WordEnd(text));
        if (word.size() > longest.size()) longest = word;
        text.remove_prefix(std::max<std::size_t>(word.size(), 1));
    }
    const bool isPlain = std::ranges::all_of(
        longest, [](char c) { return static_cast<unsigned char>(c) < kFirstOfThree; });
    return isPlain && longest.size() < kMost ? longest : std::string_view();
}

/// Returns the number that a text such as "-12.345" is; nothing for another text.
std::optional<double> PlainNumber(std::string_view text) {
    double value = 0;
    if (!LooksLikeAmount(text)) return std::nullopt;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::nullopt;
    return value;
}

Twips Scaled(Twips length, double scale) {
    return static_cast<Twips>(length * scale);
}

} // namespace

TableRowLayout::TableRowLayout(FontMetrics& metrics, const PrintStyle& style,
                               const PrintTable& table, const FittedColumns& columns, RowKind kind)
    : metrics_(metrics),
      style_(style),
      table_(table),
      columns_(columns),
      kind_(kind),
      plain_(MakeInk(metrics, style, columns.textScale, Weight::Regular)),
      bold_(MakeInk(metrics, style, columns.textScale, Weight::Bold)),
      spaceBefore_(Scaled(style.spaceBefore, columns.textScale)),
      spaceAfter_(Scaled(style.spaceAfter, columns.textScale)),
      inset_(Scaled(style.cellInset, columns.textScale)),
      lineHeight_(std::max(plain_.measure.LineHeight(), bold_.measure.LineHeight())) {}

void TableRowLayout::Fill(std::span<const std::string_view> cells) {
    cells_.clear();
    lines_.clear();
    made_.clear();
    lineCount_ = 1;
    for (std::size_t column = 0; column < columns_.widths.size(); ++column) {
        FillCell(column, column < cells.size() ? cells[column] : std::string_view());
    }
}

void TableRowLayout::FillCell(std::size_t column, std::string_view text) {
    std::string cleaned;
    text = CleanText(text, cleaned);
    if (text.data() == cleaned.data()) text = made_.emplace_back(std::move(cleaned));
    const std::size_t begin = lines_.size();
    const TextInk* ink = &InkOf(column);
    if (!BreakCell(column, *ink, text)) {
        const std::string_view shorter = Shortened(column, text);
        const TextInk* fitting = &FittingInk(column, shorter);
        if (fitting != ink || shorter.data() != text.data()) {
            ink = fitting;
            lines_.resize(begin);
            BreakCell(column, *ink, shorter);
        }
    }
    cells_.push_back({begin, lines_.size(), ink});
    lineCount_ = std::max(lineCount_, lines_.size() - begin);
}

/// Adds a cell's lines; returns false if its text isn't whole in one line.
bool TableRowLayout::BreakCell(std::size_t column, const TextInk& ink, std::string_view text) {
    const Twips width = std::max(columns_.widths[column] - 2 * Inset(column), 1);
    // Column titles are never cut.
    if (table_.columns[column].wrap == Wrap::Wrap || kind_ == RowKind::Header) {
        const std::size_t begin = lines_.size();
        BreakLines(ink.measure, text, width, lines_);
        return lines_.size() - begin == 1;
    }
    std::string cut;
    MeasuredLine line = CutLine(ink.measure, text, width, cut);
    const bool isWhole = line.text.data() != cut.data();
    if (!isWhole) line.text = made_.emplace_back(std::move(cut));
    lines_.push_back(line);
    return isWhole;
}

/// Returns a number rounded to the decimals that its column has room for, at least two.
std::string_view TableRowLayout::Shortened(std::size_t column, std::string_view text) {
    constexpr std::size_t kLeastDecimals = 2;
    const auto point = text.find('.');
    if (kind_ == RowKind::Header || point == std::string_view::npos) return text;
    std::size_t decimals = text.size() - point - 1;
    const auto value = decimals > kLeastDecimals ? PlainNumber(text) : std::nullopt;
    if (!value) return text;
    const TextMeasure& measure = InkOf(column).measure;
    const Twips room = columns_.widths[column] - 2 * Inset(column);
    std::string shorter(text);
    while (measure.Width(shorter) > room && decimals > kLeastDecimals)
        shorter = fmt::format("{:.{}f}", *value, --decimals);
    return made_.emplace_back(std::move(shorter));
}

/// Returns the part of a cell's text that should stay in one line: an amount, a day or a word.
TableRowLayout::WholeText TableRowLayout::WholePart(std::size_t column,
                                                    std::string_view text) const {
    if (kind_ == RowKind::Header) return {WidestWord(text, InkOf(column).measure), kLeastTitleSize};
    if (StaysInOneLine(text)) return {text, kLeastWholeSize};
    if (table_.columns[column].wrap == Wrap::Ellipsis) return {};
    return {LongestWord(text), kLeastWordSize};
}

/// Returns the column's font, smaller if an amount, a day or a word is too wide for the column:
/// "18,205" above ".00" would be misread.
const TextInk& TableRowLayout::FittingInk(std::size_t column, std::string_view text) {
    constexpr int kTenths = 10;
    const TextInk& usual = InkOf(column);
    const Twips room = std::max(columns_.widths[column] - 2 * Inset(column), 1);
    const auto [whole, least] = WholePart(column, text);
    const Twips width = usual.measure.Width(whole);
    if (width <= room) return usual;
    const auto size = static_cast<double>(usual.measure.Size());
    const double fitting = std::floor(size * room / width * kTenths) / kTenths;
    // A word that has to be broken anyway is as large as the others.
    if (fitting < least && least == kLeastWordSize) return usual;
    const double wanted = std::max(fitting, least);
    if (wanted >= size) return usual;
    const bool bold = &usual == &bold_;
    const auto key = std::pair(bold, static_cast<int>(std::lround(wanted * kTenths)));
    const auto known = smaller_.find(key);
    if (known != smaller_.end()) return known->second;
    PrintStyle style = style_;
    style.fontSize = wanted;
    return smaller_.emplace(key, MakeInk(metrics_, style, 1, bold ? Weight::Bold : Weight::Regular))
        .first->second;
}

Twips TableRowLayout::HeightOf(std::size_t lines) const {
    const Twips height = spaceBefore_ + static_cast<Twips>(lines) * lineHeight_ + spaceAfter_;
    return kind_ == RowKind::Header ? std::max(height, table_.header.height) : height;
}

std::size_t TableRowLayout::LinesIn(Twips height) const {
    return static_cast<std::size_t>(std::max(height - spaceBefore_ - spaceAfter_, 0) / lineHeight_);
}

void TableRowLayout::Draw(PageMaker& maker, Twips x, Twips y, std::size_t first,
                          std::size_t end) const {
    Twips top = y + spaceBefore_;
    if (kind_ == RowKind::Header && table_.header.vertical != VerticalAlign::Top) {
        const Twips spare = HeightOf(end - first) - spaceBefore_ - spaceAfter_ -
                            static_cast<Twips>(end - first) * lineHeight_;
        top += table_.header.vertical == VerticalAlign::Middle ? spare / 2 : spare;
    }
    for (std::size_t column = 0; column < cells_.size(); ++column) {
        const Cell& cell = cells_[column];
        for (std::size_t i = cell.begin + first; i < std::min(cell.begin + end, cell.end); ++i) {
            const auto row = static_cast<Twips>(i - cell.begin - first);
            // Smaller letters have the same baseline as the others.
            const Twips lower = InkOf(column).measure.Ascent() - cell.ink->measure.Ascent();
            maker.Text(*cell.ink, x + LineX(column, lines_[i]), top + row * lineHeight_ + lower,
                       lines_[i]);
        }
        x += columns_.widths[column];
    }
}

const TextInk& TableRowLayout::InkOf(std::size_t column) const {
    const bool bold = kind_ == RowKind::Header ? table_.header.bold : table_.columns[column].bold;
    return bold ? bold_ : plain_;
}

Twips TableRowLayout::Inset(std::size_t column) const {
    return std::min(inset_, columns_.widths[column] / 8);
}

Twips TableRowLayout::LineX(std::size_t column, const MeasuredLine& line) const {
    const TableColumn& format = table_.columns[column];
    const Twips left = Inset(column);
    const Twips right = columns_.widths[column] - left;
    if (format.alignCurrency && kind_ == RowKind::Body && LooksLikeAmount(line.text)) {
        return std::max(CurrencyX(cells_[column].ink->measure, right, line), left);
    }
    switch (format.align) {
        case TextAlign::Left:
            return left;
        case TextAlign::Center:
            return std::max((left + right - line.width) / 2, left);
        case TextAlign::Right:
            return std::max(right - line.width, left);
    }
    return left;
}

/// Returns where an amount begins so that its decimal point is in line with the point of "(12.00)".
Twips TableRowLayout::CurrencyX(const TextMeasure& measure, Twips right,
                                const MeasuredLine& line) const {
    const Twips point = right - measure.Width(".00)");
    const auto at = line.text.find_last_of('.');
    const std::string_view whole =
        line.text.substr(0, at == std::string_view::npos ? line.text.find(')') : at);
    return std::min(point - measure.Width(whole), right - line.width);
}

} // namespace platform
