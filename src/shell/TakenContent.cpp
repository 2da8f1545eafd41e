#include "shell/TakenContent.h"

#include <nlohmann/json.hpp>

#include "core/Descriptions.h"
#include "core/KindOfTable.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"

namespace shell {

using Json = nlohmann::ordered_json;
using platform::Recordset;
using platform::Value;

namespace {

constexpr std::string_view kFileTable = "FileObject";

Json FieldsOf(Recordset& row) {
    Json fields = Json::object();
    for (std::size_t i = 0; i < row.FieldCount(); ++i) {
        const platform::Field field = row[i];
        fields[field.Name()] = field.IsNull() ? Json() : Json(field.AsText());
    }
    return fields;
}

/// The tables whose rows stay when a party is deleted set the link to it to 0.
void UnlinkIfDeleted(Recordset& row, std::string_view type, std::string_view id) {
    if (!row.HasField(type)) return;
    const core::RecordKind kind = core::KindOf(row[type]);
    const std::int32_t idParty = IdOf(row[id]);
    if (kind != core::kAccount && kind != core::kTenant) return;
    if (idParty != 0 && !core::RecordExists(kind, idParty)) row[id].Set(std::int32_t{0});
}

void WriteRow(std::string_view table, const Json& fields) {
    Recordset row = core::NewRow(table);
    // Nulls are set too, since the table's defaults would take their place.
    for (const auto& [name, value] : fields.items()) {
        if (value.is_array()) continue;
        row[name].Set(value.is_string() ? Value(value.get_ref<const std::string&>()) : Value());
    }
    UnlinkIfDeleted(row, "DebitType", "DebitId");
    UnlinkIfDeleted(row, "CreditType", "CreditId");
    row.Update();
}

} // namespace

std::string ContentOf(core::RecordKind kind, std::int32_t id, Recordset& stored) {
    Json content = FieldsOf(stored);
    Recordset files =
        core::Read("SELECT * FROM FileObject WHERE (dbType = ?) AND (IdOwner = ?)", {kind, id});
    for (; !files.Eof(); files.MoveNext())
        content[kFileTable].push_back(FieldsOf(files));
    return content.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool RestoreContent(std::string_view table, const std::string& content) {
    const Json fields = Json::parse(content, nullptr, false);
    if (!fields.is_object()) return false;
    WriteRow(table, fields);
    if (const auto files = fields.find(kFileTable); files != fields.end()) {
        for (const Json& file : *files)
            WriteRow(kFileTable, file);
    }
    return true;
}

} // namespace shell
