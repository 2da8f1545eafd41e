#pragma once

#include <string>
#include <vector>

#include <fmt/core.h>

#include "core/CoreFixture.h"
#include "core/Session.h"
#include "exchange/Port.h"
#include "exchange/Stops.h"
#include "platform/database/DatabaseReader.h"

namespace tests {

using namespace exchange;

/// Books, and their text file "database.csv".
class PortTest : public CoreBooks {
  protected:
    /// Every row of every table, nulls and empty texts alike.
    static std::vector<std::string> Dump() {
        std::vector<std::string> rows;
        platform::DatabaseReader reader(core::App().DbFile);
        for (const auto& table : reader.Tables().Tables()) {
            reader.ReadRows(table.name, [&](platform::DatabaseReader::Row row) {
                std::string line = table.name;
                for (const platform::Cell& cell : row) {
                    line += '|';
                    if (cell.kind == platform::Cell::Kind::Integer)
                        line += std::to_string(cell.integer);
                    if (cell.kind == platform::Cell::Kind::Real)
                        line += fmt::format("{:a}", cell.real);
                    line += cell.bytes;
                }
                rows.push_back(line);
            });
        }
        return rows;
    }

    PortWatcher Watcher() {
        return {.status = [this](std::string_view lines) { status_ = lines; },
                .progress = [this](int percent) { percent_ = percent; }};
    }

    void ExportAll() {
        WriteTables(core::ListTables(core::App().Connection).names, PathTo("database.csv"),
                    Watcher());
    }

    ImportOutcome Import(ImportMode mode = ImportMode::Write, ImportRows rows = ImportRows::Append,
                         ImportMessages messages = ImportMessages::Quiet) {
        return ImportDatabase(PathTo("database.csv"), mode, rows, messages, Watcher());
    }

    std::string status_;
    int percent_ = -1;
};

/// The beginning of a file of rooms.
inline const std::string kRooms =
    "\"Table\",\"Room\",\"/Table\"\n\"Fields\",\"IdRoom\",\"RoomType\","
    "\"/Fields\"\n";

} // namespace tests
