#include "exchange/KnownRows.h"

#include <algorithm>

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/values/Text.h"

namespace exchange {

namespace {

struct TableKey {
    std::string_view table;
    std::vector<std::string> fields;
};

/// Returns the tables whose first field isn't the id of their rows.
const std::vector<TableKey>& OtherKeys() {
    static const std::vector<TableKey> keys = {
        {"Alerts", {"EntryDate", "Description"}},
        {"BooksSetting", {"Name"}},
        {"RentCredit", {"IdRentLog", "IdOrigin"}},
        {"TakenBack", {"IdRow", "RecordKind", "IdRecord", "Posting", "DatePosted"}},
        {"TransCategory", {"Category", "IEN"}},
    };
    return keys;
}

/// Returns the key fields of a table that isn't the program's own: an id, or the first two fields.
std::vector<std::string> KeyFieldsOf(const platform::dialect::Table& table) {
    for (const TableKey& key : OtherKeys()) {
        if (platform::EqualIgnoringCase(key.table, table.name)) return key.fields;
    }
    const bool hasId = platform::EqualIgnoringCase(table.columns.front().name.substr(0, 2), "Id") &&
                       table.columns.front().type == platform::FieldType::Long;
    std::vector<std::string> names;
    for (const platform::dialect::Column& column : table.columns) {
        if (names.size() < (hasId ? 1U : 2U)) names.push_back(column.name);
    }
    return names;
}

void AddToKey(std::string& key, std::string_view part) {
    key += part;
    key += '\0';
}

} // namespace

KnownRows::KnownRows(const platform::dialect::Table& table) : keyFields_(KeyFieldsOf(table)) {
    std::string fields;
    for (const std::string& name : keyFields_)
        fields += (fields.empty() ? "" : ", ") + platform::dialect::QuoteName(name);
    platform::Recordset rows =
        core::Read("SELECT " + fields + " FROM " + platform::dialect::QuoteName(table.name));
    for (; !rows.Eof(); rows.MoveNext()) {
        std::string key;
        for (std::size_t i = 0; i < keyFields_.size(); ++i)
            AddToKey(key, platform::TextOf(rows[i]));
        keys_.insert(std::move(key));
    }
}

void KnownRows::SetFields(const std::vector<std::string>& names) {
    keyItems_.clear();
    for (const std::string& field : keyFields_) {
        const auto at = std::ranges::find_if(names, [&](const std::string& name) {
            return platform::EqualIgnoringCase(name, field);
        });
        if (at == names.end()) return keyItems_.clear();
        keyItems_.push_back(static_cast<std::size_t>(at - names.begin()));
    }
}

bool KnownRows::Has(const std::vector<PortItem>& record) const {
    if (keyItems_.empty() || keys_.empty()) return false;
    std::string key;
    for (const std::size_t item : keyItems_)
        AddToKey(key, record[item].text);
    return keys_.contains(key);
}

} // namespace exchange
