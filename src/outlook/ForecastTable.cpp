#include "outlook/ForecastTable.h"

namespace outlook {

using core::MakeColumn;
using platform::FieldType;
using platform::Value;

namespace {

enum Column : std::size_t { Number, RecordKind, RecordId, Day, What, For, Amount, FlowWord };

} // namespace

ForecastTable::ForecastTable(const Forecast& forecast)
    : forecast_(forecast),
      columns_({MakeColumn("No.", FieldType::Long), MakeColumn("RecordKind", FieldType::Integer),
                MakeColumn("RecordId", FieldType::Long), MakeColumn("Date", FieldType::Date),
                MakeColumn("What", FieldType::Text), MakeColumn("For", FieldType::Text),
                MakeColumn("Amount", FieldType::Currency), MakeColumn("Flow", FieldType::Text)}) {}

Value ForecastTable::ValueAt(std::int64_t row, std::size_t column) const {
    const ForecastRow& coming = forecast_.rows[static_cast<std::size_t>(row)];
    switch (column) {
        case Number:
            return static_cast<std::int32_t>(row + 1);
        case RecordKind:
            return coming.recordKind;
        case RecordId:
            return coming.recordId;
        case Day:
            return coming.date;
        case What:
            return coming.what;
        case For:
            return coming.name;
        case Amount:
            return coming.origin == Origin::Day ? Value() : Value(coming.amount);
        case FlowWord:
            return std::string(FlowName(coming.flow));
        default:
            return {};
    }
}

} // namespace outlook
