#include "reports/Queries.h"

#include <exception>

#include "core/Globals.h"
#include "core/Session.h"
#include "platform/database/dialect/Compiler.h"
#include "store/TextSizes.h"

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

std::vector<int> TextSizesOf(std::string_view sql) {
    std::vector<int> sizes;
    try {
        const auto compiled = platform::dialect::Compile(sql, core::App().Connection.Tables());
        for (const platform::dialect::ResultColumn& column : compiled.columns)
            sizes.push_back(store::TextSizeOf(column.table, column.field));
    } catch (const platform::Error&) {
        return {};
    }
    return sizes;
}

} // namespace reports
