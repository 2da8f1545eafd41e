#include "platform/database/dialect/Functions.h"

namespace platform::dialect {

namespace {

BoundPtr DateValue(FunctionCall& call) {
    return call.Date(0);
}

BoundPtr Part(std::string_view function, FunctionCall& call) {
    return MakeCall(function, FieldType::Long, call.Date(0));
}

constexpr FunctionDefinition kDateFunctions[] = {
    {"DateValue", 1, 1, DateValue},
    {"CDate", 1, 1, DateValue},
    {"Date", 0, 0, [](FunctionCall&) { return MakeCall("vestrel_today", FieldType::Date); }},
    {"Now", 0, 0, [](FunctionCall&) { return MakeCall("vestrel_now", FieldType::Date); }},
    {"Year", 1, 1, [](FunctionCall& call) { return Part("vestrel_year", call); }},
    {"Month", 1, 1, [](FunctionCall& call) { return Part("vestrel_month", call); }},
    {"Day", 1, 1, [](FunctionCall& call) { return Part("vestrel_day", call); }},
    {"Weekday", 1, 1, [](FunctionCall& call) { return Part("vestrel_weekday", call); }},
    {"DatePart", 2, 2,
     [](FunctionCall& call) {
         return MakeCall("vestrel_date_part", FieldType::Long, call.Text(0), call.Date(1));
     }},
    {"DateSerial", 3, 3,
     [](FunctionCall& call) {
         return MakeCall("vestrel_date_serial", FieldType::Date, call.Number(0), call.Number(1),
                         call.Number(2));
     }},
    {"DateAdd", 3, 3,
     [](FunctionCall& call) {
         return MakeCall("vestrel_date_add", FieldType::Date, call.Text(0), call.Number(1),
                         call.Date(2));
     }},
    {"DateDiff", 3, 3,
     [](FunctionCall& call) {
         return MakeCall("vestrel_date_diff", FieldType::Long, call.Text(0), call.Date(1),
                         call.Date(2));
     }},
};

} // namespace

std::span<const FunctionDefinition> DateFunctions() {
    return kDateFunctions;
}

} // namespace platform::dialect
