#include "core/Descriptions.h"

#include <algorithm>
#include <optional>

#include <fmt/core.h>

#include "core/KindTable.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/values/Text.h"

namespace core {

namespace {

/// Returns the kind of the records that a list of `kind` offers.
const KindInfo& InfoOfOffered(RecordKind kind) {
    const KindInfo& info = InfoOf(kind);
    return info.offers == kNone ? info : InfoOf(info.offers);
}

std::string_view DescriptionSql(const KindInfo& info, bool shortForm) {
    return shortForm && !info.shortDescription.empty() ? info.shortDescription : info.description;
}

/// Describes a record by a statement in which every parameter is its identifier.
std::optional<platform::Value> Describe(std::string_view sql, std::int32_t id) {
    return std::ranges::count(sql, '?') == 2 ? LookUp(sql, {id, id}) : LookUp(sql, {id});
}

/// Returns the statement that finds a record; empty for a kind without records of its own.
std::string ExistenceSql(const KindInfo& info) {
    if (info.key.empty()) return {};
    return fmt::format("SELECT {0} FROM {1} WHERE {0} = ?", info.key, info.table);
}

/// Returns the statement of a description that leaves out the parts that are null: '&' joins a null
/// as an empty text.
std::string WithoutNulls(std::string_view sql) {
    std::string joined(sql);
    std::ranges::replace(joined, '+', '&');
    return joined;
}

/// Returns the text without the commas and blanks at its end that joined what was left out.
std::string WithoutLooseEnd(std::string text) {
    text.erase(text.find_last_not_of(" ,") + 1);
    return text;
}

} // namespace

std::string GetDescription(RecordKind kind, std::int32_t id, std::size_t maxLength,
                           bool shortForm) {
    const std::string_view sql = DescriptionSql(InfoOf(kind), shortForm);
    if (sql.empty()) return {};
    const auto line = Describe(sql, id);
    if (!line) return {};
    const std::string text = line->AsText();
    return maxLength == 0 ? text : platform::LeftCharacters(text, maxLength);
}

bool RecordExists(RecordKind kind, std::int32_t id) {
    const std::string sql = ExistenceSql(InfoOfOffered(kind));
    return !sql.empty() && Exists(sql, {id});
}

std::string NameOfRecord(RecordKind kind, std::int32_t id) {
    if (id == 0) return {};
    const KindInfo& info = InfoOfOffered(kind);
    const std::string sql = WithoutNulls(DescriptionSql(info, true));
    if (!sql.empty()) {
        const auto line = Describe(sql, id);
        const std::string text = WithoutLooseEnd(line ? line->AsText() : std::string());
        if (!text.empty()) return text;
    }
    std::string name(info.name);
    name += (name.empty() ? "no. " : " no. ") + std::to_string(id);
    const bool isDeleted = !ExistenceSql(info).empty() && !RecordExists(kind, id);
    return isDeleted ? name + " (deleted)" : name;
}

} // namespace core
