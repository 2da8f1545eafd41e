#include "leases/DumpBooks.h"

#include "core/Globals.h"
#include "core/Session.h"
#include "platform/database/Recordset.h"

namespace tests {

std::vector<std::string> DumpBooks() {
    std::vector<std::string> lines;
    for (const std::string& table : core::ListTables(core::App().Connection).names) {
        platform::Recordset rows;
        rows.Open(core::App().Connection, table);
        for (; !rows.Eof(); rows.MoveNext()) {
            std::string line = table + ": ";
            for (std::size_t i = 0; i < rows.FieldCount(); ++i)
                line += (rows[i].IsNull() ? "null" : rows[i].AsText()) + "|";
            lines.push_back(line);
        }
    }
    return lines;
}

} // namespace tests
