#include "platform/printing/TableRowLayout.h"

#include <algorithm>

#include "platform/printing/Unicode.h"

namespace platform {

namespace {

/// Smaller than this nobody reads: the text is wrapped more often instead.
constexpr double kLeastSize = 4;

double TextScale(const PrintStyle& style, double scale) {
    return std::max(scale, std::min(1.0, kLeastSize / std::max(style.fontSize, 1.0)));
}

TextInk MakeInk(FontMetrics& metrics, PrintStyle style, double scale, Weight weight) {
    if (weight == Weight::Bold) style.fontBold = true;
    return {.measure = TextMeasure(metrics, style, TextScale(style, scale)),
            .color = style.textColor,
            .underline = style.fontUnderline};
}

bool LooksLikeAmount(std::string_view text) {
    return !text.empty() &&
           text.find_first_not_of("0123456789.,()-+$% ") == std::string_view::npos &&
           text.find_first_of("0123456789") != std::string_view::npos;
}

Twips Scaled(Twips length, double scale) {
    return static_cast<Twips>(length * scale);
}

} // namespace

TableRowLayout::TableRowLayout(FontMetrics& metrics, const PrintStyle& style,
                               const PrintTable& table, const FittedColumns& columns, RowKind kind)
    : table_(table),
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
    const std::size_t begin = lines_.size();
    const TextMeasure& measure = InkOf(column).measure;
    const Twips width = std::max(columns_.widths[column] - 2 * Inset(column), 1);
    std::string cleaned;
    text = CleanText(text, cleaned);
    if (text.data() == cleaned.data()) text = made_.emplace_back(std::move(cleaned));
    // Column titles are never cut.
    if (table_.columns[column].wrap == Wrap::Wrap || kind_ == RowKind::Header) {
        BreakLines(measure, text, width, lines_);
    } else {
        std::string cut;
        MeasuredLine line = CutLine(measure, text, width, cut);
        if (line.text.data() == cut.data()) line.text = made_.emplace_back(std::move(cut));
        lines_.push_back(line);
    }
    cells_.push_back({begin, lines_.size()});
    lineCount_ = std::max(lineCount_, lines_.size() - begin);
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
            maker.Text(InkOf(column), x + LineX(column, lines_[i]), top + row * lineHeight_,
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
        return std::max(CurrencyX(InkOf(column).measure, right, line), left);
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

/// Where an amount begins so that its decimal point is where that of "(12.00)" would be.
Twips TableRowLayout::CurrencyX(const TextMeasure& measure, Twips right,
                                const MeasuredLine& line) const {
    const Twips point = right - measure.Width(".00)");
    const auto at = line.text.find_last_of('.');
    const std::string_view whole =
        line.text.substr(0, at == std::string_view::npos ? line.text.find(')') : at);
    return std::min(point - measure.Width(whole), right - line.width);
}

} // namespace platform
