#include "exchange/ImportCheck.h"

#include <algorithm>
#include <optional>

#include "core/Globals.h"
#include "core/MessagePump.h"
#include "exchange/KnownRows.h"
#include "platform/database/dialect/Catalog.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace exchange {

namespace {

constexpr std::size_t kMostFields = 255;
constexpr int kLinesBetweenMessages = 1000;

constexpr std::string_view kNoFile = "input file could not be found.";
constexpr std::string_view kBadTable = "invalid table name specified.";
constexpr std::string_view kNoTableEnd = "expected /Table not present.";
constexpr std::string_view kFieldsFirst = "field names specified before valid table name.";
constexpr std::string_view kNoFields = "no field names specified.";
constexpr std::string_view kBadField = "invalid field name specified.";
constexpr std::string_view kRecordFirst = "a record was specified before valid table name.";
constexpr std::string_view kBadCount = "record did not contain correct amount of fields.";
constexpr std::string_view kUtf16 =
    "the file is UTF-16 text. Save it as UTF-8 and import it again.";

/// Returns whether a field is named twice: then it isn't clear which value it gets.
bool HasTwice(std::vector<std::string> names) {
    for (std::string& name : names)
        name = platform::ToLower(name);
    std::ranges::sort(names);
    return std::ranges::adjacent_find(names) != names.end();
}

class Checker {
  public:
    Checker(KnownRecords known, ImportCheck& found) : knownRecords_(known), found_(found) {}

    /// Returns the error in the reader's line; empty if there is none.
    std::string_view CheckLine(const PortReader& reader) {
        switch (reader.Marker()) {
            case PortMarker::Table:
                return CheckTable(reader);
            case PortMarker::Fields:
                return CheckFields(reader);
            case PortMarker::Record:
                return CheckRecord(reader);
            case PortMarker::None:
                break;
        }
        ++found_.invalidLines;
        return {};
    }

  private:
    std::string_view CheckTable(const PortReader& reader) {
        table_.reset();
        known_.reset();
        fields_ = 0;
        if (!reader.Items().empty()) {
            const auto* const found =
                core::App().Connection.Tables().Find(reader.Items().front().text);
            if (found != nullptr) table_ = *found;
        }
        if (!table_) return kBadTable;
        if (!reader.IsWhole() || reader.Items().size() != 1) return kNoTableEnd;
        ++found_.tables;
        if (platform::EqualIgnoringCase(table_->name, kConfigurationTable)) {
            found_.hasConfiguration = true;
        } else if (knownRecords_ == KnownRecords::Count) {
            known_.emplace(*table_);
        }
        return {};
    }

    std::string_view CheckFields(const PortReader& reader) {
        if (!table_) return kFieldsFirst;
        const std::vector<std::string> names = TextsOf(reader.Items());
        if (names.empty()) return kNoFields;
        const bool known = std::ranges::all_of(
            names, [this](const std::string& name) { return table_->Find(name) != nullptr; });
        if (!known || !reader.IsWhole() || names.size() > kMostFields || HasTwice(names)) {
            return kBadField;
        }
        fields_ = names.size();
        if (known_) known_->SetFields(names);
        return {};
    }

    std::string_view CheckRecord(const PortReader& reader) {
        if (!table_) return kRecordFirst;
        if (!reader.IsWhole() || fields_ == 0 || reader.Items().size() != fields_) {
            return kBadCount;
        }
        ++found_.records;
        if (known_ && known_->Has(reader.Items())) ++found_.known;
        return {};
    }

    KnownRecords knownRecords_;
    ImportCheck& found_;
    // A copy, since the session may be closed by a window message while the file is read.
    std::optional<platform::dialect::Table> table_;
    std::optional<KnownRows> known_;
    std::size_t fields_ = 0;
};

void CheckLines(PortReader& reader, KnownRecords known, ImportCheck& found,
                const PortWatcher& watcher) {
    if (reader.IsUtf16()) {
        found.outcome = {std::string(kUtf16), 1};
        return;
    }
    Checker checker(known, found);
    for (std::int64_t lines = 1; reader.NextLine(); ++lines) {
        const std::string_view error = checker.CheckLine(reader);
        if (!error.empty()) {
            found.outcome = {std::string(error), reader.Number()};
            return;
        }
        if (lines % kLinesBetweenMessages != 0) continue;
        watcher.Progress(reader.BytesRead(), reader.Size());
        core::LetMessagesRun();
    }
    if (!reader.IsUtf8()) found.letters = PortReader::Letters::Latin1;
}

} // namespace

std::vector<std::string> TextsOf(const std::vector<PortItem>& items) {
    std::vector<std::string> texts;
    texts.reserve(items.size());
    for (const PortItem& item : items)
        texts.emplace_back(item.text);
    return texts;
}

ImportCheck CheckImport(const std::filesystem::path& file, KnownRecords known,
                        const PortWatcher& watcher) {
    ImportCheck found;
    if (!platform::FileExists(file.string()) || std::filesystem::is_directory(file)) {
        found.outcome.error = kNoFile;
        return found;
    }
    std::optional<PortReader> reader;
    try {
        reader.emplace(file, PortReader::Letters::Utf8);
        CheckLines(*reader, known, found, watcher);
    } catch (const platform::Error& failure) {
        found.outcome = {failure.what(), reader ? reader->Number() : 0};
    }
    return found;
}

} // namespace exchange
