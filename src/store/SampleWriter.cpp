#include "store/SampleWriter.h"

#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Compiler.h"
#include "platform/values/Errors.h"

namespace store {

namespace {

platform::Value BlankOf(FieldKind kind) {
    switch (kind) {
        case FieldKind::Long:
        case FieldKind::Counter:
            return std::int32_t{0};
        case FieldKind::Integer:
            return std::int16_t{0};
        case FieldKind::Double:
            return 0.0;
        case FieldKind::Currency:
            return platform::Currency();
        case FieldKind::Boolean:
            return false;
        case FieldKind::Text:
        case FieldKind::Memo:
        case FieldKind::DateText:
            break;
    }
    return "";
}

} // namespace

SampleWriter::SampleWriter(platform::Connection& connection, std::function<std::int32_t()> nextId)
    : connection_(connection), nextId_(std::move(nextId)) {}

const SampleWriter::Insert& SampleWriter::InsertInto(std::string_view name) {
    const auto known = inserts_.find(name);
    if (known != inserts_.end()) return known->second;

    const auto& tables = BooksTables();
    const auto table = std::find_if(tables.begin(), tables.end(),
                                    [&](const auto& each) { return each.name == name; });
    if (table == tables.end()) throw platform::FieldError(fmt::format("no table {}", name));

    Insert insert{&*table, {}, {}};
    std::string names;
    std::string places;
    for (const FieldDefinition& field : table->fields) {
        names += (names.empty() ? "" : ", ") + platform::dialect::QuoteName(field.name);
        places += places.empty() ? "?" : ", ?";
        insert.blank.push_back(BlankOf(field.kind));
    }
    insert.sql = fmt::format("INSERT INTO {} ({}) VALUES ({})",
                             platform::dialect::QuoteName(table->name), names, places);
    return inserts_.emplace(table->name, std::move(insert)).first->second;
}

std::int32_t SampleWriter::Add(std::string_view table, Fields fields) {
    const Insert& insert = InsertInto(table);
    const std::vector<FieldDefinition>& known = insert.table->fields;
    std::vector<platform::Value> values = insert.blank;
    std::int32_t id = 0;
    if (known.front().kind == FieldKind::Long) {
        id = nextId_();
        values.front() = id;
    }
    for (const auto& [name, value] : fields) {
        const auto field =
            std::find_if(known.begin(), known.end(),
                         [&, wanted = name](const auto& each) { return each.name == wanted; });
        if (field == known.end()) {
            throw platform::FieldError(fmt::format("{} has no field {}", table, name));
        }
        const bool unsetDay = field->kind == FieldKind::DateText && value.IsNull();
        values[static_cast<std::size_t>(field - known.begin())] = unsetDay ? "" : value;
    }
    connection_.Execute(insert.sql, values);
    return id;
}

} // namespace store
