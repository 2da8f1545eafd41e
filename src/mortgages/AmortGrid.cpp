#include "mortgages/AmortGrid.h"

#include <array>

#include "platform/values/Conversions.h"
#include "platform/values/Format.h"

namespace mortgages {

namespace {

using V = AmortView;
using P = AmortPeriod;

constexpr std::string_view kNumber = "No.";

/// In the order of the grid.
constexpr std::array<AmortColumn, 16> kColumns = {{
    {kNumber, AmortFormat::Count, nullptr, nullptr},
    {"Due", AmortFormat::Day, &V::showDue, nullptr},
    {"Rate", AmortFormat::Rate, nullptr, &P::Rate},
    {"Pmt", AmortFormat::Money, nullptr, &P::Pmt},
    {"Pmt Yr", AmortFormat::Money, &V::showYear, &P::PmtYTD},
    {"Pmt TTD", AmortFormat::Money, &V::showTotal, &P::PmtTTD},
    {"Pri", AmortFormat::Money, &V::showDetail, &P::Pri},
    {"Xtra Pri", AmortFormat::Money, nullptr, &P::XPri},
    {"Pri Yr", AmortFormat::Money, &V::showYear, &P::PriYTD},
    {"Pri TTD", AmortFormat::Money, &V::showTotal, &P::PriTTD},
    {"Int", AmortFormat::Money, &V::showDetail, &P::Int},
    {"Int Yr", AmortFormat::Money, &V::showYear, &P::IntYTD},
    {"Int TTD", AmortFormat::Money, &V::showTotal, &P::IntTTD},
    {"Balance", AmortFormat::Money, nullptr, &P::EndBal},
    {"Remaining", AmortFormat::Count, &V::showDetail, nullptr},
    {"PPM Penalty", AmortFormat::Money, &V::showDetail, &P::Penalty},
}};

/// Indexes into kColumns: the columns of a printed schedule, followed by the others in a full one.
constexpr std::array<std::size_t, 8> kPrinted = {0, 2, 3, 6, 7, 10, 13, 14};
constexpr std::array<std::size_t, 8> kPrintedInFull = {1, 4, 5, 8, 9, 11, 12, 15};

bool StandsLeft(const AmortColumn& column) {
    return column.caption == kNumber || column.format == AmortFormat::Day;
}

} // namespace

platform::Value AmortGrid::Value(std::size_t row, std::size_t column) const {
    const AmortColumn& at = columns_[column];
    const AmortPeriod& period = mortgage_->Schedule()[row];
    const auto number = static_cast<std::int32_t>(row) + 1;
    switch (at.format) {
        case AmortFormat::Day:
            return platform::Date::Parse(period.Due.View());
        case AmortFormat::Count:
            if (at.caption == kNumber) return number;
            return static_cast<std::int32_t>(mortgage_->Schedule().size()) - number;
        case AmortFormat::Rate:
            return period.*at.amount * 100;
        case AmortFormat::Money:
            break;
    }
    return period.*at.amount;
}

std::string AmortGrid::Text(std::size_t row, std::size_t column) const {
    const platform::Value value = Value(row, column);
    switch (columns_[column].format) {
        case AmortFormat::Rate:
            return platform::FormatNumber(value.AsDouble(), "#.00");
        case AmortFormat::Money:
            return platform::FormatNumber(value.AsDouble(), platform::kMoneyFormat);
        case AmortFormat::Count:
        case AmortFormat::Day:
            break;
    }
    return value.AsText();
}

std::vector<AmortColumn> PrintedColumns(bool full) {
    std::vector<AmortColumn> columns;
    columns.reserve(kColumns.size());
    for (const std::size_t place : kPrinted)
        columns.push_back(kColumns[place]);
    if (!full) return columns;
    for (const std::size_t place : kPrintedInFull)
        columns.push_back(kColumns[place]);
    return columns;
}

AmortGrid clsMortgage::ShowGrid(const AmortView& view) const {
    std::vector<AmortColumn> columns;
    for (const AmortColumn& column : kColumns) {
        if (column.shownWith == nullptr || view.*column.shownWith) columns.push_back(column);
    }
    return {*this, std::move(columns)};
}

void clsMortgage::GetAmortization(std::vector<std::vector<std::string>>& table, std::string& header,
                                  std::string& format, bool full) const {
    const AmortGrid grid(*this, PrintedColumns(full));
    const auto& columns = grid.Columns();
    const std::string share =
        platform::NumberToText(100.0 / static_cast<double>(columns.size())) + "%";
    header.clear();
    format.clear();
    for (const AmortColumn& column : columns) {
        if (!header.empty()) {
            header += '|';
            format += '|';
        }
        header += column.caption;
        format += (StandsLeft(column) ? "<~" : ">~") + share;
    }
    table.assign(grid.RowCount(), std::vector<std::string>(columns.size()));
    for (std::size_t row = 0; row < table.size(); ++row) {
        for (std::size_t column = 0; column < columns.size(); ++column)
            table[row][column] = grid.Text(row, column);
    }
}

} // namespace mortgages
