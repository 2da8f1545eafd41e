#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/Rows.h"
#include "exchange/ImportCheck.h"
#include "exchange/KeepCopy.h"
#include "exchange/KnownRows.h"
#include "exchange/Port.h"
#include "exchange/PortFile.h"
#include "platform/database/Connection.h"
#include "platform/database/RowWriter.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace exchange {

namespace {

constexpr int kRowsBetweenProgress = 1000;
constexpr std::string_view kLatin1Note =
    "Note: the file is not UTF-8; its letters are read as Latin-1.\n";

/// Returns the error for a malformed line, which means a changed file: the first reading found no
/// such line.
platform::Error FileChanged() {
    return platform::Error("the file was changed while it was read.");
}

/// Adds the records of a checked file to the database, and counts those that it has already.
class Importer {
  public:
    Importer(ImportRows rows, const ImportCheck& check, const PortWatcher& watcher)
        : rows_(rows), check_(check), watcher_(watcher) {}

    void WriteLine(const PortReader& reader) {
        switch (reader.Marker()) {
            case PortMarker::Table:
                if (reader.Items().size() != 1) throw FileChanged();
                OpenTable(reader.Items().front().text);
                break;
            case PortMarker::Fields:
                writer_ = std::make_unique<platform::RowWriter>(core::App().Connection, table_,
                                                                names_ = TextsOf(reader.Items()));
                if (known_ != nullptr) known_->SetFields(names_);
                break;
            case PortMarker::Record:
                if (!writer_ || reader.Items().size() != names_.size()) throw FileChanged();
                WriteRecord(reader.Items());
                break;
            case PortMarker::None:
                break;
        }
    }

    std::int64_t Records() const { return records_; }
    std::int64_t Known() const { return knownRecords_; }

  private:
    void OpenTable(std::string_view name) {
        writer_.reset();
        table_ = name;
        const bool isConfiguration = platform::EqualIgnoringCase(table_, kConfigurationTable);
        if (isConfiguration || rows_ == ImportRows::Overwrite) {
            core::Execute("DELETE * FROM " + platform::dialect::QuoteName(table_));
            known_ = nullptr;
            return;
        }
        // Counts as the table was before the import, even if the file begins it a second time.
        const std::string key = platform::ToLower(table_);
        const auto* const table = core::App().Connection.Tables().Find(table_);
        if (table == nullptr) throw FileChanged();
        known_ = &tables_.try_emplace(key, *table).first->second;
    }

    void WriteRecord(const std::vector<PortItem>& items) {
        cells_.resize(items.size());
        scratch_.resize(std::max(scratch_.size(), items.size()));
        for (std::size_t i = 0; i < items.size(); ++i)
            cells_[i] = CellOf(items[i], i);
        writer_->Add(cells_);
        if (known_ != nullptr && known_->Has(items)) ++knownRecords_;
        if (++records_ % kRowsBetweenProgress == 0) watcher_.Progress(records_, check_.records);
    }

    platform::Cell CellOf(const PortItem& item, std::size_t field) {
        try {
            return CellOfItem(item, writer_->Types()[field], scratch_[field]);
        } catch (const platform::Error& failure) {
            throw platform::FieldError(
                fmt::format("the field {} of {} can't hold '{}': {}", names_[field], table_,
                            platform::LeftCharacters(item.text, 50), failure.what()));
        }
    }

    ImportRows rows_;
    const ImportCheck& check_;
    const PortWatcher& watcher_;
    std::string table_;
    std::vector<std::string> names_;
    std::unique_ptr<platform::RowWriter> writer_;
    std::vector<platform::Cell> cells_;
    std::vector<std::string> scratch_;
    std::map<std::string, KnownRows> tables_; ///< by their names in lower case
    KnownRows* known_ = nullptr;              ///< of the current table; null if it was emptied
    std::int64_t records_ = 0;
    std::int64_t knownRecords_ = 0;
};

/// How an import is to be written.
struct WriteOrder {
    const std::filesystem::path& file;
    ImportRows rows;
    const ImportCheck& check;
    /// How many records may be in the database already.
    std::int64_t mayBeKnown;
};

/// Writes all records, or those before the first one that can't be written; writes none if more of
/// them are in the database already than `order` allows. A copy of the database is saved before any
/// table is emptied, and `note` then says so.
ImportOutcome WriteRecords(const WriteOrder& order, const PortWatcher& watcher, std::string& note) {
    ImportOutcome outcome;
    platform::UnitOfWork unit(core::App().Connection);
    if (order.rows == ImportRows::Overwrite || order.check.hasConfiguration) {
        // Inside the unit, so that another program's last rows are in the copy.
        note += fmt::format("The database as it was is kept in {}\n",
                            KeepCopy(CopyReason::Import).string());
    }
    PortReader reader(order.file, order.check.letters);
    {
        Importer importer(order.rows, order.check, watcher);
        try {
            while (reader.NextLine())
                importer.WriteLine(reader);
        } catch (const platform::Error& failure) {
            outcome = {failure.what(), reader.Number()};
        }
        outcome.written = importer.Records();
        outcome.known = importer.Known();
    }
    if (outcome.known > order.mayBeKnown) return outcome;
    try {
        unit.Commit();
    } catch (const platform::Error& failure) {
        // After some errors, such as a full disk, the engine has already rolled the unit back.
        if (outcome.Succeeded()) outcome.error = failure.what();
        outcome.error += " Nothing was imported.";
        outcome.written = outcome.known = 0;
    }
    return outcome;
}

void TellError(const ImportOutcome& outcome, ImportMessages messages, const PortWatcher& watcher,
               const std::string& note) {
    if (messages == ImportMessages::Show) {
        platform::TheDialogs().ShowMessage(
            "Import Error", "An error occured while reading the import file, " + outcome.error,
            platform::Icon::Exclamation);
    }
    watcher.Status(fmt::format("Status: An error occured with the import file at line {}\n{}",
                               outcome.line, note));
}

/// Returns the advice for importing the rest of a file.
std::string WrittenNote(std::int64_t written, ImportRows rows) {
    if (written == 0) return {};
    return fmt::format(
        "Total Records Written = {}\nThese records, from the lines before it, stay in the "
        "database. "
        "Correct the line and import {}.\n",
        written,
        rows == ImportRows::Append ? "only the rest of the file, or they will be there twice"
                                   : "the whole file again");
}

std::string TestText(const ImportCheck& check, const std::string& note) {
    return fmt::format(
        "Status: Import test succeeded ...\nTotal Tables  = {}\n"
        "Total Records  = {}\nInvalid lines  = {}\n{}",
        check.tables, check.records, check.invalidLines, note);
}

std::string EndText(const ImportCheck& check, const std::string& note) {
    return fmt::format("Status: Import completed.\nTotal Tables  = {}\nTotal Records  = {}\n{}",
                       check.tables, check.records, note);
}

/// Asks whether to add what the database has already, and writes the records. Another program may
/// add some of them while the user is asked: then nothing is written, and the question is put again
/// with the new number. Returns nothing if the user declines.
std::optional<ImportOutcome> AskAndWrite(const std::filesystem::path& file, ImportRows rows,
                                         ImportCheck check, const PortWatcher& watcher,
                                         std::string& note) {
    if (core::App().Connection.IsReadOnly())
        throw platform::DatabaseError("These books can only be read.");
    std::int64_t agreed = watcher.addAgain ? 0 : std::numeric_limits<std::int64_t>::max();
    for (;;) {
        if (check.known > agreed) {
            if (!watcher.addAgain(check.known, check.records)) return std::nullopt;
            agreed = check.known;
        }
        std::string written;
        ImportOutcome outcome = WriteRecords({file, rows, check, agreed}, watcher, written);
        if (outcome.known > agreed) {
            check.known = outcome.known; // in the letters of the file, and of this moment
            continue;
        }
        if (!outcome.Succeeded()) written.insert(0, WrittenNote(outcome.written, rows));
        note.insert(0, written);
        return outcome;
    }
}

} // namespace

ImportOutcome ImportDatabase(const std::filesystem::path& file, ImportMode mode, ImportRows rows,
                             ImportMessages messages, const PortWatcher& watcher) {
    watcher.Status("Starting Import ...");
    watcher.Progress(0, 0);
    const bool asks = mode == ImportMode::Write && rows == ImportRows::Append && watcher.addAgain;
    const ImportCheck check =
        CheckImport(file, asks ? KnownRecords::Count : KnownRecords::Ignore, watcher);
    std::string note(check.letters == PortReader::Letters::Latin1 ? kLatin1Note : "");
    ImportOutcome outcome = check.outcome;
    if (outcome.Succeeded() && mode == ImportMode::Test) {
        watcher.Progress(1, 1);
        watcher.Status(TestText(check, note));
        return outcome;
    }
    if (outcome.Succeeded()) {
        try {
            const auto written = AskAndWrite(file, rows, check, watcher, note);
            if (!written) {
                watcher.Status("Status: The import was cancelled. Nothing was imported.\n");
                return {.error = "the import was cancelled."};
            }
            outcome = *written;
        } catch (const platform::Error& failure) {
            outcome.error = failure.what();
        }
        core::NotifyOfAllKinds();
    }
    if (!outcome.Succeeded()) {
        TellError(outcome, messages, watcher, note);
        return outcome;
    }
    watcher.Progress(1, 1);
    watcher.Status(EndText(check, note));
    return outcome;
}

} // namespace exchange
