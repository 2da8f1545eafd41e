#include "core/Session.h"

#include <exception>
#include <limits>
#include <utility>

#include <fmt/core.h>

#include "core/DiagLog.h"
#include "core/Globals.h"
#include "platform/values/Text.h"

namespace core {

bool OpenDatabase(platform::Connection& connection, std::string& path) {
    if (path.empty()) path = App().DbFile;
    std::ostream* diagFile = App().DiagFile;
    WriteDiag(diagFile, "{ } Opening database at " + path);

    App().OpenFault.clear();
    const auto fail = [&](int number, std::string_view description) {
        App().OpenFault = description;
        WriteDiag(diagFile,
                  fmt::format("{{*}} Error {} opening database {{{}}}", number, description));
        return false;
    };
    try {
        connection.Open(path, platform::OpenMode::ReadWriteIfAllowed);
        return true;
    } catch (const platform::DatabaseError& error) {
        return fail(error.Code(), error.what());
    } catch (const std::exception& error) {
        return fail(0, error.what());
    }
}

bool CloseDatabase(platform::Connection& connection) {
    try {
        connection.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ExecuteSql(std::string_view sql, std::initializer_list<platform::Value> parameters) {
    try {
        App().Connection.Execute(sql, parameters);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

std::int64_t OpenRecordset(platform::Recordset& rows, std::string_view sql,
                           platform::CursorMode mode,
                           std::initializer_list<platform::Value> parameters) {
    try {
        rows.Close();
        rows.Open(App().Connection, sql, mode, parameters);
        return rows.RecordCount();
    } catch (const std::exception&) {
        CloseRecordset(rows);
        return -1;
    }
}

std::int16_t CountIn16Bits(std::int64_t count) {
    if (count > std::numeric_limits<std::int16_t>::max()) return -1;
    return static_cast<std::int16_t>(count);
}

void CloseRecordset(platform::Recordset& rows) {
    try {
        rows.Close();
    } catch (const std::exception&) {
        // A row set that can't be closed ends when it is destroyed.
    }
}

void GetScalar(std::string_view sql, platform::Value& value) {
    platform::Recordset rows;
    if (OpenRecordset(rows, sql, platform::CursorMode::ReadOnly) == 0) return;
    try {
        platform::Value result = rows["Result"].Value();
        if (!result.IsNull()) value = std::move(result);
    } catch (const std::exception&) {
        // A statement that failed, or has no such column, leaves the value as it was.
    }
}

std::optional<platform::Value> LookUp(std::string_view sql,
                                      std::initializer_list<platform::Value> parameters) {
    try {
        auto value = App().Connection.Scalar(sql, parameters);
        if (value && value->IsNull()) value.reset();
        return value;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

void AddWhere(std::string& sql, std::string_view condition) {
    const bool hasWhere = platform::ContainsIgnoringCase(sql, "WHERE");
    if (!sql.ends_with(' ')) sql += ' ';
    sql.append(hasWhere ? "AND (" : "WHERE (").append(condition).append(")");
}

bool RepairNulls(platform::Recordset& rows, std::ostream* diagFile) {
    using platform::FieldType;
    bool found = false;
    for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
        platform::Field field = rows[i];
        if (!field.IsNull()) continue;
        found = true;
        WriteDiag(diagFile, "{*} NULL value detected in field " + field.Name());
        switch (field.Type()) {
            case FieldType::Long:
            case FieldType::Double:
            case FieldType::Currency:
                field.Set(std::int32_t{0});
                break;
            case FieldType::Boolean:
                field.Set(false);
                break;
            case FieldType::Text:
            case FieldType::Memo:
                field.Set("");
                break;
            case FieldType::Integer:
            case FieldType::Date:
                break;
        }
    }
    return found;
}

} // namespace core
