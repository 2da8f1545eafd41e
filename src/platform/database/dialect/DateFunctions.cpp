#include <fmt/core.h>

#include "platform/database/dialect/FunctionCall.h"

namespace platform::dialect {

namespace {

Typed AsDate(std::string sql) {
    return MakeTyped(std::move(sql), FieldType::Date);
}

template <char Part>
Typed DatePart(const FunctionCall& call) {
    return MakeTyped(fmt::format("vestrel_date_part('{}', {})", Part, call.Date(0)),
                     FieldType::Long);
}

Typed DateValue(const FunctionCall& call) {
    return AsDate(call.Date(0));
}

constexpr FunctionDefinition kFunctions[] = {
    {"DateValue", 1, 1, DateValue},
    {"CDate", 1, 1, DateValue},
    {"Date", 0, 0, [](const FunctionCall&) { return AsDate("vestrel_today()"); }},
    {"Now", 0, 0, [](const FunctionCall&) { return AsDate("vestrel_now()"); }},
    {"Year", 1, 1, DatePart<'y'>},
    {"Month", 1, 1, DatePart<'m'>},
    {"Day", 1, 1, DatePart<'d'>},
    {"Weekday", 1, 1, DatePart<'w'>},
    {"DatePart", 2, 2,
     [](const FunctionCall& call) {
         return MakeTyped(fmt::format("vestrel_interval_part({}, {})", call.Text(0), call.Date(1)),
                          FieldType::Long);
     }},
    {"DateSerial", 3, 3,
     [](const FunctionCall& call) {
         return AsDate(fmt::format("vestrel_date_serial({}, {}, {})", call.Number(0),
                                   call.Number(1), call.Number(2)));
     }},
    {"DateAdd", 3, 3,
     [](const FunctionCall& call) {
         return AsDate(fmt::format("vestrel_date_add({}, {}, {})", call.Text(0), call.Number(1),
                                   call.Date(2)));
     }},
    {"DateDiff", 3, 3,
     [](const FunctionCall& call) {
         return MakeTyped(
             fmt::format("vestrel_date_diff({}, {}, {})", call.Text(0), call.Date(1), call.Date(2)),
             FieldType::Long);
     }},
};

} // namespace

std::span<const FunctionDefinition> DateFunctions() {
    return kFunctions;
}

} // namespace platform::dialect
