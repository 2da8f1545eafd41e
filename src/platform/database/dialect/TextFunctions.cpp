#include "platform/database/dialect/Functions.h"

namespace platform::dialect {

namespace {

/// Returns a call of `function` with one text.
BoundPtr OfText(std::string_view function, FunctionCall& call, FieldType type = FieldType::Text) {
    return MakeCall(function, type, call.Text(0));
}

/// Returns a call of `function` with a text and a number of characters.
BoundPtr PartOf(std::string_view function, FunctionCall& call) {
    BoundPtr text = call.Text(0);
    return MakeCall(function, FieldType::Text, std::move(text), call.Whole(1));
}

BoundPtr Mid(FunctionCall& call) {
    BoundPtr text = call.Text(0);
    BoundPtr start = call.Whole(1);
    if (call.Count() == 2) {
        return MakeCall("vestrel_mid", FieldType::Text, std::move(text), std::move(start));
    }
    return MakeCall("vestrel_mid", FieldType::Text, std::move(text), std::move(start),
                    call.Whole(2));
}

BoundPtr InStr(FunctionCall& call) {
    // The optional start position is the first argument.
    const std::size_t text = call.Count() - 2;
    BoundPtr start = text == 1 ? call.Whole(0) : MakeNumber("1", FieldType::Long, 0);
    BoundPtr whole = call.Text(text);
    return MakeCall("vestrel_instr", FieldType::Long, std::move(start), std::move(whole),
                    call.Text(text + 1));
}

BoundPtr Replace(FunctionCall& call) {
    BoundPtr text = call.Text(0);
    BoundPtr part = call.Text(1);
    return MakeCall("replace", FieldType::Text, std::move(text), std::move(part), call.Text(2));
}

constexpr FunctionDefinition kTextFunctions[] = {
    {"Left", 2, 2, [](FunctionCall& call) { return PartOf("vestrel_left", call); }},
    {"Right", 2, 2, [](FunctionCall& call) { return PartOf("vestrel_right", call); }},
    {"Mid", 2, 3, Mid},
    {"Len", 1, 1, [](FunctionCall& call) { return OfText("length", call, FieldType::Long); }},
    {"Trim", 1, 1, [](FunctionCall& call) { return OfText("trim", call); }},
    {"LTrim", 1, 1, [](FunctionCall& call) { return OfText("ltrim", call); }},
    {"RTrim", 1, 1, [](FunctionCall& call) { return OfText("rtrim", call); }},
    {"UCase", 1, 1, [](FunctionCall& call) { return OfText("vestrel_upper", call); }},
    {"LCase", 1, 1, [](FunctionCall& call) { return OfText("vestrel_lower", call); }},
    {"Replace", 3, 3, Replace},
    {"InStr", 2, 3, InStr},
    {"Space", 1, 1,
     [](FunctionCall& call) { return MakeCall("vestrel_space", FieldType::Text, call.Whole(0)); }},
    {"Chr", 1, 1,
     [](FunctionCall& call) { return MakeCall("char", FieldType::Text, call.Whole(0)); }},
    {"Asc", 1, 1, [](FunctionCall& call) { return OfText("unicode", call, FieldType::Long); }},
    {"Val", 1, 1,
     [](FunctionCall& call) { return OfText("vestrel_val", call, FieldType::Double); }},
};

} // namespace

std::span<const FunctionDefinition> TextFunctions() {
    return kTextFunctions;
}

} // namespace platform::dialect
