#include "reports/Queries.h"

#include <exception>

#include "core/Globals.h"
#include "core/Session.h"

namespace reports {

bool OpenQuery(platform::Recordset& rows, std::string_view sql) {
    try {
        rows.Open(core::App().Connection, sql, platform::CursorMode::ReadAsNeeded);
        return rows.RecordCount() > 0;
    } catch (const std::exception&) {
        core::CloseRecordset(rows);
        return false;
    }
}

} // namespace reports
