#include "documents/MergeTags.h"

#include <optional>

#include "core/SystemTags.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace documents {

namespace {

constexpr std::string_view kOpen = "<<";
constexpr std::string_view kClose = ">>";
constexpr char kSystemMark = '!';

std::string Formatted(const platform::Field& field) {
    switch (field.Type()) {
        case platform::FieldType::Currency:
            return platform::Format(field.Value(), platform::kMoneyFormat);
        case platform::FieldType::Date:
            return platform::Format(field.Value(), platform::kDateFormat);
        case platform::FieldType::Boolean:
            return field.AsBoolean() ? "Yes" : "No";
        default:
            return field.AsText();
    }
}

std::optional<std::string> ValueOf(std::string_view name, platform::Recordset& fields) {
    if (name.front() == kSystemMark) return SystemTag(name.substr(1));
    if (!fields.HasField(name)) return std::nullopt;
    const platform::Field field = fields[name];
    if (field.IsNull()) return std::nullopt;
    return Formatted(field);
}

} // namespace

std::vector<MergeTag> TagsOf(std::string_view text) {
    std::vector<MergeTag> tags;
    for (std::size_t from = 0;;) {
        const std::size_t open = text.find(kOpen, from);
        if (open == std::string_view::npos) return tags;
        const std::size_t name = open + kOpen.size();
        const std::size_t close = text.find(kClose, name);
        if (close == std::string_view::npos) return tags;
        from = close + kClose.size();
        if (close > name) tags.push_back({text.substr(name, close - name), open, from - open});
    }
}

void MergeTags(std::string& text, platform::Recordset& fields, TextKind kind) {
    std::string merged;
    merged.reserve(text.size());
    std::size_t copied = 0;
    for (const MergeTag& tag : TagsOf(text)) {
        const std::optional<std::string> value = ValueOf(tag.name, fields);
        if (!value) continue;
        merged.append(text, copied, tag.start - copied);
        merged += EscapedFor(kind, *value);
        copied = tag.start + tag.length;
    }
    merged.append(text, copied);
    text = std::move(merged);
}

std::string SystemTag(std::string_view name) {
    // Both dates have the same format.
    if (platform::EqualIgnoringCase(name, "longdate")) name = "date";
    return core::SystemTagValue(name).value_or("Invalid Tag");
}

} // namespace documents
