#include "search/SourceRow.h"

#include "core/KindOfTable.h"
#include "platform/database/FieldReadings.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "search/Target.h"
#include "search/Words.h"

namespace search {

namespace {

constexpr int kSourceShift = 32;
constexpr std::int64_t kMostKeys = std::int64_t{1} << kSourceShift;

void Mix(std::uint64_t& mark, std::string_view text) {
    constexpr std::uint64_t kPrime = 1099511628211ULL;
    for (const char letter : text) {
        mark ^= static_cast<unsigned char>(letter);
        mark *= kPrime;
    }
    // A letter that moves to the next field must change the mark.
    mark ^= 0xFF;
    mark *= kPrime;
}

std::string RawText(const platform::Field& field) {
    return field.IsNull() ? std::string() : field.AsText();
}

std::string Typed(const platform::Field& field) {
    if (field.IsBlank()) return {};
    switch (field.Type()) {
        case platform::FieldType::Boolean:
            return field.AsBoolean() ? "hidden" : "";
        case platform::FieldType::Currency:
            return platform::FormatMoney(field.AsCurrency());
        case platform::FieldType::Double:
            return platform::FormatNumber(field.AsDouble(), platform::kMoneyFormat);
        default:
            return field.AsText();
    }
}

/// Returns a field as lists show it; a field that can't be read is left out.
std::string ShownText(const platform::Field& field) {
    try {
        return Typed(field);
    } catch (const platform::Error&) {
        return {};
    }
}

void Append(std::string& text, std::string_view glue, std::string_view part) {
    if (part.empty()) return;
    if (!text.empty()) text += glue;
    text += part;
}

} // namespace

std::int64_t FirstKey(std::size_t source) {
    return static_cast<std::int64_t>(source) << kSourceShift;
}

std::int64_t LastKey(std::size_t source) {
    return FirstKey(source) + kMostKeys - 1;
}

std::int64_t KeyOf(std::size_t source, std::int32_t id) {
    constexpr std::int64_t kHighestId = INT32_MAX;
    return FirstKey(source) + (kHighestId - id);
}

std::size_t SourceOf(std::int64_t key) {
    return static_cast<std::size_t>(key >> kSourceShift);
}

SourceRows::SourceRows(std::size_t source, platform::Recordset& rows)
    : number_(source), source_(Sources()[source]), rows_(rows) {
    for (std::size_t i = 1; i < rows.FieldCount(); ++i) {
        const std::string& name = rows[i].Name();
        roles_.push_back(name == "Kind"      ? Role::Kind
                         : name == "Parent1" ? Role::Parent1
                         : name == "Parent3" ? Role::Parent3
                         : name[0] == 'T'    ? Role::Title
                         : name[0] == 'D'    ? Role::Detail
                                             : Role::Words);
    }
}

std::int32_t SourceRows::Id() {
    return platform::IdOf(rows_[std::size_t{0}]);
}

std::uint64_t SourceRows::Mark() {
    std::uint64_t mark = 14695981039346656037ULL;
    for (std::size_t i = 1; i < rows_.FieldCount(); ++i) {
        try {
            Mix(mark, RawText(rows_[i]));
        } catch (const platform::Error&) {
            Mix(mark, "?");
        }
    }
    return mark;
}

platform::IndexedText SourceRows::Text() {
    platform::IndexedText text{.key = KeyOf(number_, Id()),
                               .mark = Mark(),
                               .title = {},
                               .detail = {},
                               .target = {},
                               .words = {}};
    Target target{.kind = source_.kind, .id = Id(), .parent1 = 0, .parent3 = 0};
    std::string words;
    std::size_t titles = 0;
    for (std::size_t i = 0; i < roles_.size(); ++i) {
        const platform::Field field = rows_[i + 1];
        switch (roles_[i]) {
            case Role::Kind:
                target.kind = core::KindOf(field);
                continue;
            case Role::Parent1:
                target.parent1 = platform::IdOf(field);
                continue;
            case Role::Parent3:
                target.parent3 = platform::IdOf(field);
                continue;
            case Role::Title:
                Append(text.title, titles++ == 1 ? source_.glue : " ", ShownText(field));
                break;
            case Role::Detail:
                Append(text.detail, ", ", ShownText(field));
                break;
            case Role::Words:
                break;
        }
        Append(words, " ", ShownText(field));
    }
    // A contact or a file opens the record that it belongs to.
    if (source_.kind == core::kNone)
        target = {.kind = target.kind, .id = target.parent1, .parent1 = 0, .parent3 = 0};
    text.target = TargetText(target);
    text.words = IndexWords(words);
    return text;
}

} // namespace search
