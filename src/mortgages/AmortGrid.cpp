#include "mortgages/AmortGrid.h"

#include <array>

#include "platform/values/Conversions.h"
#include "platform/values/Format.h"

namespace mortgages {

using platform::FieldType;

namespace {

enum class Shown { Count, Day, Rate, Money };

} // namespace

struct AmortColumn {
    std::string_view caption;
    Shown shown = Shown::Money;
    bool AmortView::*shownWith = nullptr;  ///< null for a column that can't be left out
    double AmortPeriod::*amount = nullptr; ///< of money columns
};

namespace {

using V = AmortView;
using P = AmortPeriod;

constexpr std::string_view kNumber = "No.";

/// In the order of the grid.
constexpr std::array<AmortColumn, 16> kColumns = {{
    {kNumber, Shown::Count, nullptr, nullptr},
    {"Due", Shown::Day, &V::showDue, nullptr},
    {"Rate", Shown::Rate, nullptr, &P::Rate},
    {"Pmt", Shown::Money, nullptr, &P::Pmt},
    {"Pmt Yr", Shown::Money, &V::showYear, &P::PmtYTD},
    {"Pmt TTD", Shown::Money, &V::showTotal, &P::PmtTTD},
    {"Pri", Shown::Money, &V::showDetail, &P::Pri},
    {"Xtra Pri", Shown::Money, nullptr, &P::XPri},
    {"Pri Yr", Shown::Money, &V::showYear, &P::PriYTD},
    {"Pri TTD", Shown::Money, &V::showTotal, &P::PriTTD},
    {"Int", Shown::Money, &V::showDetail, &P::Int},
    {"Int Yr", Shown::Money, &V::showYear, &P::IntYTD},
    {"Int TTD", Shown::Money, &V::showTotal, &P::IntTTD},
    {"Balance", Shown::Money, nullptr, &P::EndBal},
    {"Remaining", Shown::Count, &V::showDetail, nullptr},
    {"PPM Penalty", Shown::Money, &V::showDetail, &P::Penalty},
}};

/// Indexes into kColumns: the columns of a printed schedule, followed by the others in a full one.
constexpr std::array<std::size_t, 8> kPrinted = {0, 2, 3, 6, 7, 10, 13, 14};
constexpr std::array<std::size_t, 8> kPrintedInFull = {1, 4, 5, 8, 9, 11, 12, 15};

core::TableColumn TableColumnOf(const AmortColumn& column) {
    using Kind = core::ColumnFormat::Kind;
    const std::string caption(column.caption);
    switch (column.shown) {
        case Shown::Count:
            return {caption, FieldType::Long, {Kind::Plain, {}, true}};
        case Shown::Day:
            return {caption, FieldType::Date, {}};
        case Shown::Rate:
            return {caption, FieldType::Double, {Kind::Exact, "#.00", true}};
        case Shown::Money:
            break;
    }
    return {caption, FieldType::Double, {Kind::Exact, std::string(platform::kMoneyFormat), true}};
}

} // namespace

AmortGrid::AmortGrid(const clsMortgage& mortgage, const AmortView& view) : mortgage_(mortgage) {
    for (const AmortColumn& column : kColumns) {
        if (column.shownWith == nullptr || view.*column.shownWith) Add(column);
    }
}

AmortGrid::AmortGrid(const clsMortgage& mortgage, PrintedColumns printed) : mortgage_(mortgage) {
    for (const std::size_t place : kPrinted)
        Add(kColumns[place]);
    if (printed == PrintedColumns::Usual) return;
    for (const std::size_t place : kPrintedInFull)
        Add(kColumns[place]);
}

void AmortGrid::Add(const AmortColumn& column) {
    sources_.push_back(&column);
    columns_.push_back(TableColumnOf(column));
}

platform::Value AmortGrid::ValueAt(std::int64_t row, std::size_t column) const {
    const AmortColumn& source = *sources_[column];
    const AmortPeriod& period = mortgage_.Schedule()[static_cast<std::size_t>(row)];
    const auto number = static_cast<std::int32_t>(row) + 1;
    switch (source.shown) {
        case Shown::Day:
            return platform::Date::Parse(period.Due.View());
        case Shown::Count:
            if (source.caption == kNumber) return number;
            return static_cast<std::int32_t>(RowCount()) - number;
        case Shown::Rate:
            return period.*source.amount * 100;
        case Shown::Money:
            break;
    }
    return period.*source.amount;
}

bool AmortGrid::IsPrintedLeft(std::size_t column) const {
    return sources_[column]->caption == kNumber || sources_[column]->shown == Shown::Day;
}

std::string AmortGrid::Text(std::int64_t row, std::size_t column) const {
    return core::CellText(ValueAt(row, column), columns_[column].format);
}

std::unique_ptr<AmortGrid> clsMortgage::ShowGrid(const AmortView& view) const {
    return std::make_unique<AmortGrid>(*this, view);
}

void clsMortgage::GetAmortization(std::vector<std::vector<std::string>>& table, std::string& header,
                                  std::string& format, bool full) const {
    const AmortGrid grid(*this, full ? PrintedColumns::All : PrintedColumns::Usual);
    const std::size_t count = grid.Columns().size();
    const std::string share = platform::NumberToText(100.0 / static_cast<double>(count)) + "%";
    header.clear();
    format.clear();
    for (std::size_t column = 0; column < count; ++column) {
        if (column > 0) {
            header += '|';
            format += '|';
        }
        header += grid.Columns()[column].caption;
        format += (grid.IsPrintedLeft(column) ? "<~" : ">~") + share;
    }
    table.assign(static_cast<std::size_t>(grid.RowCount()), std::vector<std::string>(count));
    for (std::size_t row = 0; row < table.size(); ++row) {
        for (std::size_t column = 0; column < count; ++column)
            table[row][column] = grid.Text(static_cast<std::int64_t>(row), column);
    }
}

} // namespace mortgages
