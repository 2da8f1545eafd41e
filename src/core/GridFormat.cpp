#include "core/GridFormat.h"

#include "core/ShownNumber.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace core {

namespace {

ColumnFormat Pattern(std::string_view pattern, bool right) {
    return {ColumnFormat::Kind::Pattern, std::string(pattern), right};
}

} // namespace

ColumnFormat FormatOf(platform::FieldType type, std::string_view caption) {
    using platform::FieldType;
    switch (type) {
        case FieldType::Currency:
            return Pattern(platform::kMoneyFormat, true);
        case FieldType::Date:
            return Pattern(platform::kDateFormat, false);
        case FieldType::Boolean:
            return {ColumnFormat::Kind::YesNo, {}, false};
        case FieldType::Double:
            return Pattern(platform::EqualIgnoringCase(caption, "I Rate") ? "#.000" : "#.0", true);
        case FieldType::Integer:
        case FieldType::Long:
            return {ColumnFormat::Kind::Plain, {}, true};
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return {};
}

std::string CellText(const platform::Value& value, const ColumnFormat& format) {
    if (value.IsNull()) return " ";
    switch (format.kind) {
        case ColumnFormat::Kind::YesNo: {
            const std::string text = value.AsText();
            return text == "0" || platform::EqualIgnoringCase(text, "False") ? "No" : "Yes";
        }
        case ColumnFormat::Kind::Pattern:
            if (const auto* const number = std::get_if<double>(&value.Held())) {
                return platform::FormatNumber(ShownNumber(*number), format.pattern);
            }
            return platform::Format(value, format.pattern);
        case ColumnFormat::Kind::Exact:
            return platform::FormatNumber(value.AsDouble(), format.pattern);
        case ColumnFormat::Kind::Plain:
            break;
    }
    return value.AsText();
}

} // namespace core
