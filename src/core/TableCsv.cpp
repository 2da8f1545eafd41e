#include "core/TableCsv.h"

#include <ostream>

#include "platform/values/Csv.h"

namespace core {

void WriteCsv(const Table& table, std::ostream& output) {
    const std::vector<TableColumn>& columns = table.Columns();
    std::string line;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (i > 0) line += ',';
        line += platform::CsvText(columns[i].caption);
    }
    output << line << '\n';
    for (std::int64_t row = 0; row < table.RowCount(); ++row) {
        line.clear();
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (i > 0) line += ',';
            platform::AppendCsvCell(line, table.ValueAt(row, i));
        }
        // A row of one empty cell would be an empty line, which separates results.
        output << (line.empty() ? "NULL" : line) << '\n';
    }
}

} // namespace core
