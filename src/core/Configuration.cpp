#include "core/Configuration.h"

#include <exception>

#include "core/ConfigFields.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"

namespace core {

namespace {

/// A field that can't be read counts as its member's initial value.
struct Reader {
    platform::Recordset& rows;
    std::string_view name;
    ConfigValues& values;

    void operator()(std::monostate) const {}
    template <class T>
    void operator()(T ConfigValues::*member) const {
        try {
            values.*member = platform::As<T>(rows[name]);
        } catch (const std::exception&) {
            values.*member = {};
        }
    }
};

} // namespace

ConfigValues& Config() {
    static ConfigValues values;
    return values;
}

void LoadConfiguration() {
    platform::Recordset rows;
    if (OpenRecordset(rows, "SELECT * FROM Configuration", platform::CursorMode::ReadOnly) < 1)
        return;
    for (const ConfigField& field : ConfigFields()) {
        std::visit(Reader{rows, field.name, Config()}, field.member);
    }
}

bool CreateDefaultConfiguration(platform::Connection& connection) {
    std::string path;
    if (!connection.IsOpen() && !OpenDatabase(connection, path)) return false;
    try {
        // Begins as a write: two programs that start at the same time must not both add it.
        platform::UnitOfWork unit(connection);
        platform::Recordset rows;
        rows.Open(connection, "SELECT * FROM Configuration", platform::CursorMode::Updatable);
        // A count that failed may have made the table look empty.
        if (!rows.Eof()) return false;
        rows.AddNew();
        for (const ConfigField& field : ConfigFields()) {
            if (!field.newValue.IsNull()) rows[field.name].Set(field.newValue);
        }
        rows.Update();
        unit.Commit();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace core
