#include "documents/TemplateCheck.h"

#include <algorithm>
#include <cctype>

#include "core/RecordKinds.h"
#include "core/SystemTags.h"
#include "documents/MergeSource.h"
#include "documents/MergeTags.h"
#include "platform/database/Recordset.h"
#include "platform/values/Text.h"

namespace documents {

namespace {

bool Contains(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::any_of(
        names, [&](const std::string& known) { return platform::EqualIgnoringCase(known, name); });
}

void AddOnce(std::vector<std::string>& names, std::string_view name) {
    if (!Contains(names, name)) names.emplace_back(name);
}

std::vector<std::string> FieldsOf(std::span<const core::RecordKind> kinds) {
    std::vector<std::string> names;
    for (const core::RecordKind kind : kinds) {
        platform::Recordset fields;
        OpenMergeSource(fields, kind, 0); // no record has this id: only the fields are read
        for (std::size_t i = 0; fields.IsOpen() && i < fields.FieldCount(); ++i)
            AddOnce(names, fields[i].Name());
    }
    return names;
}

bool IsFilled(std::string_view name, const std::vector<std::string>& fields) {
    if (name.front() == '!') return SystemTag(name.substr(1)) != "Invalid Tag";
    return Contains(fields, name);
}

/// Skips a control word, such as "\b0 ", with the blank that ends it.
std::size_t EndOfControl(std::string_view text, std::size_t position) {
    const auto isAt = [&](std::size_t at, int (*is)(int)) {
        return at < text.size() && is(static_cast<unsigned char>(text[at])) != 0;
    };
    std::size_t end = position + 1;
    if (!isAt(end, std::isalpha)) return std::min(end + 1, text.size());
    while (isAt(end, std::isalpha))
        ++end;
    if (end < text.size() && text[end] == '-') ++end;
    while (isAt(end, std::isdigit))
        ++end;
    return end < text.size() && text[end] == ' ' ? end + 1 : end;
}

} // namespace

std::string PlainTextOfRtf(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        if (c == '\\') {
            const bool isLiteral =
                i + 1 < text.size() &&
                (text[i + 1] == '\\' || text[i + 1] == '{' || text[i + 1] == '}');
            if (isLiteral) plain += text[i + 1];
            i = EndOfControl(text, i);
            continue;
        }
        if (c != '{' && c != '}' && c != '\r' && c != '\n') plain += c;
        ++i;
    }
    return plain;
}

TemplateFaults CheckTemplate(std::string_view path, std::string_view text,
                             std::span<const core::RecordKind> kinds) {
    TemplateFaults faults;
    const std::vector<std::string> fields = FieldsOf(kinds);
    std::vector<std::string> whole;
    for (const MergeTag& tag : TagsOf(text)) {
        whole.emplace_back(tag.name);
        if (!IsFilled(tag.name, fields)) AddOnce(faults.unknown, tag.name);
    }
    if (TextKindOf(path, text) != TextKind::RichText) return faults;
    const std::string plain = PlainTextOfRtf(text);
    for (const MergeTag& tag : TagsOf(plain)) {
        if (!Contains(whole, tag.name)) AddOnce(faults.torn, tag.name);
    }
    // A tag with formatting inside also counts as unknown; "torn" is the better explanation.
    std::erase_if(faults.unknown, [&](const std::string& name) {
        return name.find('\\') != std::string::npos || name.find('{') != std::string::npos;
    });
    return faults;
}

} // namespace documents
