#include <algorithm>
#include <exception>

#include "core/Globals.h"
#include "core/Session.h"
#include "platform/database/dialect/Compiler.h"

namespace core {

namespace {

std::int32_t Count(platform::Connection& connection, std::string_view sql) {
    try {
        const auto count = connection.Scalar(sql);
        return count ? count->AsLong() : 0;
    } catch (const std::exception&) {
        return 0;
    }
}

/// Returns the process's table of this name; null if there is none, or if no session is open.
const platform::dialect::Table* FindTable(std::string_view name) {
    try {
        return App().Connection.Tables().Find(name);
    } catch (const std::exception&) {
        return nullptr;
    }
}

} // namespace

std::int32_t CountTable(std::string_view table) {
    return Count(App().Connection, "SELECT Count(*) AS RecordCount FROM " + std::string(table));
}

std::int32_t CountRecords(std::string_view table, std::string_view where) {
    std::string sql = "SELECT Count(*) AS Result FROM " + std::string(table);
    if (!where.empty()) sql.append(" WHERE ").append(where);
    return Count(App().Connection, sql);
}

bool TableExists(std::string_view table) {
    return FindTable(table) != nullptr;
}

bool FieldsExist(std::string_view table, std::span<const std::string> names) {
    const auto* found = FindTable(table);
    return found != nullptr && std::ranges::all_of(names, [&](const std::string& name) {
               return found->Find(name) != nullptr;
           });
}

TableTotals ListTables(platform::Connection& connection) {
    TableTotals totals;
    try {
        for (const auto& table : connection.Tables().Tables()) {
            ++totals.tables;
            totals.names.push_back(table.name);
            totals.fields += static_cast<std::int32_t>(table.columns.size());
            totals.records += Count(connection, "SELECT Count(*) AS RecordCount FROM " +
                                                    platform::dialect::QuoteName(table.name));
        }
    } catch (const std::exception&) {
        return {};
    }
    return totals;
}

} // namespace core
