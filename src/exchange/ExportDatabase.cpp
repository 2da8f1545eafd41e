#include <algorithm>
#include <vector>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/MessagePump.h"
#include "exchange/OwnFiles.h"
#include "exchange/Port.h"
#include "exchange/PortFile.h"
#include "platform/database/DatabaseReader.h"
#include "platform/database/dialect/Catalog.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/DraftFile.h"
#include "platform/values/Errors.h"

namespace exchange {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr int kRowsBetweenMessages = 1000;

void SayError(std::string_view text) {
    platform::TheDialogs().ShowMessage("Export Error", text, platform::Icon::Exclamation);
}

/// Writes the groups of tables one after another and reports the progress.
class TableWriter {
  public:
    TableWriter(platform::DraftFile& file, const PortWatcher& watcher, std::int64_t total)
        : file_(file), watcher_(watcher), total_(total) {}

    void Write(platform::DatabaseReader& database, const platform::dialect::Table& table) {
        WriteHead(table);
        types_.clear();
        for (const platform::dialect::Column& column : table.columns)
            types_.push_back(column.type);
        database.ReadRows(table.name, [this](platform::DatabaseReader::Row row) { WriteRow(row); });
        ++tables_;
    }

    void TellEnd() const {
        watcher_.Progress(total_, total_);
        watcher_.Status(
            fmt::format("Status: Export completed.\nTotal Tables Written = {}\n"
                        "Total Records Written = {}\n",
                        tables_, records_));
    }

  private:
    void WriteHead(const platform::dialect::Table& table) {
        line_ = "\"Table\",";
        AppendPortText(line_, table.name);
        line_ += ",\"/Table\"";
        line_ += kLineEnd;
        line_ += "\"Fields\",";
        for (const platform::dialect::Column& column : table.columns) {
            AppendPortText(line_, column.name);
            line_ += ',';
        }
        line_ += "\"/Fields\"";
        line_ += kLineEnd;
        file_.Write(line_);
    }

    void WriteRow(platform::DatabaseReader::Row row) {
        line_ = "\"Record\",";
        for (std::size_t i = 0; i < row.size(); ++i) {
            AppendPortItem(line_, row[i], types_[i]);
            line_ += ',';
        }
        line_ += "\"/Record\"";
        line_ += kLineEnd;
        file_.Write(line_);
        if (++records_ % kRowsBetweenMessages != 0) return;
        watcher_.Progress(records_, total_);
        core::LetMessagesRun();
    }

    platform::DraftFile& file_;
    const PortWatcher& watcher_;
    std::int64_t total_;
    std::vector<platform::FieldType> types_;
    std::string line_;
    std::int64_t tables_ = 0;
    std::int64_t records_ = 0;
};

} // namespace

void PortWatcher::Progress(std::int64_t done, std::int64_t total) const {
    constexpr std::int64_t kWhole = 100;
    if (progress) progress(total == 0 ? 0 : static_cast<int>(done * kWhole / total));
}

void WriteTables(std::span<const std::string> tables, const std::filesystem::path& file,
                 const PortWatcher& watcher) {
    RefuseOwnFile(file);
    platform::DatabaseReader database(core::App().DbFile);
    struct Part {
        const platform::dialect::Table* table;
        std::int64_t rows;
    };
    std::vector<Part> parts;
    std::int64_t total = 0;
    for (const std::string& name : tables) {
        const auto* const table = database.Tables().Find(name);
        if (table == nullptr) throw platform::Error(fmt::format("there is no table {}", name));
        // Otherwise its rows would be imported twice.
        if (std::ranges::find(parts, table, &Part::table) != parts.end()) {
            throw platform::Error(fmt::format("the table {} is given twice", table->name));
        }
        parts.push_back({table, database.CountRows(name)});
        total += parts.back().rows;
    }
    watcher.Status(fmt::format("Status: Exporting {} records ...", total));
    platform::DraftFile draft(file);
    TableWriter writer(draft, watcher, total);
    for (const Part& part : parts) {
        if (part.rows > 0) writer.Write(database, *part.table);
    }
    draft.Publish();
    writer.TellEnd();
}

bool ExportDatabase(std::span<const std::string> tables, const PortWatcher& watcher) {
    watcher.Progress(0, 0);
    if (tables.empty()) {
        SayError("\nYou must select at least one database\ntable for the database export to work.");
        return false;
    }
    const auto file = platform::TheChoosers().SaveFile(
        {"Select Export File", "database.csv", {{"Database Export File", "database.csv"}}});
    if (!file || file->empty()) {
        SayError("The export was cancelled due to no file name being specified.");
        return false;
    }
    WriteTables(tables, *file, watcher);
    return true;
}

} // namespace exchange
