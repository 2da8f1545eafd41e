#include <fmt/core.h>

#include "platform/database/dialect/FunctionCall.h"

namespace platform::dialect {

namespace {

Typed AsText(std::string sql) {
    return MakeTyped(std::move(sql), FieldType::Text);
}
Typed AsLong(std::string sql) {
    return MakeTyped(std::move(sql), FieldType::Long);
}

constexpr FunctionDefinition kFunctions[] = {
    {"Left", 2, 2,
     [](const FunctionCall& call) {
         return AsText(fmt::format("vestrel_left({}, {})", call.Text(0), call.Number(1)));
     }},
    {"Right", 2, 2,
     [](const FunctionCall& call) {
         return AsText(fmt::format("vestrel_right({}, {})", call.Text(0), call.Number(1)));
     }},
    {"Mid", 2, 3,
     [](const FunctionCall& call) {
         const std::string length = call.Count() == 3 ? ", " + call.Number(2) : "";
         return AsText(fmt::format("substr({}, {}{})", call.Text(0), call.Number(1), length));
     }},
    {"Len", 1, 1,
     [](const FunctionCall& call) { return AsLong(fmt::format("length({})", call.Text(0))); }},
    {"Trim", 1, 1, [](const FunctionCall& call) { return AsText(call.Texts("trim")); }},
    {"LTrim", 1, 1, [](const FunctionCall& call) { return AsText(call.Texts("ltrim")); }},
    {"RTrim", 1, 1, [](const FunctionCall& call) { return AsText(call.Texts("rtrim")); }},
    {"UCase", 1, 1, [](const FunctionCall& call) { return AsText(call.Texts("vestrel_upper")); }},
    {"LCase", 1, 1, [](const FunctionCall& call) { return AsText(call.Texts("vestrel_lower")); }},
    {"Replace", 3, 3, [](const FunctionCall& call) { return AsText(call.Texts("replace")); }},
    {"InStr", 2, 3,
     [](const FunctionCall& call) {
         // The place to start from stands first where it is given.
         const bool hasStart = call.Count() == 3;
         const std::size_t text = hasStart ? 1 : 0;
         return AsLong(fmt::format("vestrel_instr({}, {}, {})",
                                   hasStart ? call.Number(0) : std::string("1"), call.Text(text),
                                   call.Text(text + 1)));
     }},
    {"Space", 1, 1,
     [](const FunctionCall& call) {
         return AsText(fmt::format("printf('%*s', {}, '')", call.Number(0)));
     }},
    {"Chr", 1, 1,
     [](const FunctionCall& call) { return AsText(fmt::format("char({})", call.Number(0))); }},
    {"Asc", 1, 1,
     [](const FunctionCall& call) { return AsLong(fmt::format("unicode({})", call.Text(0))); }},
    {"Val", 1, 1,
     [](const FunctionCall& call) {
         return MakeTyped(fmt::format("vestrel_val({})", call.Text(0)), FieldType::Double);
     }},
};

} // namespace

std::span<const FunctionDefinition> TextFunctions() {
    return kFunctions;
}

} // namespace platform::dialect
