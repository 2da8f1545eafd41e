#include "shell/RunTables.h"

namespace shell {

using core::MakeColumn;
using platform::FieldType;
using platform::Value;

namespace {

Value Count(std::int64_t count) {
    return static_cast<std::int32_t>(count);
}

/// The columns before the columns of the digest, whose own number is left out.
enum RunRowColumn : std::size_t { At, Kind, Id, FirstOfDigest };

} // namespace

RunTable::RunTable(const std::vector<PastRun>& runs)
    : runs_(runs),
      columns_({MakeColumn("No.", FieldType::Long), MakeColumn("Run", FieldType::Text),
                MakeColumn("Days", FieldType::Text), MakeColumn("Rows", FieldType::Long),
                MakeColumn("Errors", FieldType::Long)}) {}

Value RunTable::ValueAt(std::int64_t row, std::size_t column) const {
    enum Column : std::size_t { Number, RanAt, Days, Rows, Errors };
    const PastRun& run = runs_[static_cast<std::size_t>(row)];
    switch (column) {
        case Number:
            return Count(row + 1);
        case RanAt:
            return run.at;
        case Days:
            return run.Days();
        case Rows:
            return Count(std::ssize(run.digest.Rows()));
        case Errors:
            return Count(std::ssize(run.digest.Faults()));
        default:
            return {};
    }
}

RunRowTable::RunRowTable(const std::vector<PastRun>& runs,
                         const std::shared_ptr<const TakenRows>& takenBack)
    : runs_(runs),
      columns_({MakeColumn("Run", FieldType::Text), MakeColumn("RecordKind", FieldType::Integer),
                MakeColumn("RecordId", FieldType::Long)}) {
    for (std::size_t run = 0; run < runs.size(); ++run) {
        tables_.push_back(std::make_unique<DigestTable>(runs[run].digest, takenBack));
        for (std::int32_t number = 1; number <= tables_.back()->RowCount(); ++number)
            places_.push_back({run, number});
    }
    const RunDigest nothing;
    const DigestTable digest(nothing);
    columns_.insert(columns_.end(), digest.Columns().begin() + 1, digest.Columns().end());
}

Value RunRowTable::ValueAt(std::int64_t row, std::size_t column) const {
    const Place& place = places_[static_cast<std::size_t>(row)];
    const DigestTable& table = *tables_[place.run];
    const RecordPlace record = table.RecordOf(place.number).value_or(RecordPlace());
    switch (column) {
        case At:
            return runs_[place.run].at;
        case Kind:
            return record.kind;
        case Id:
            return record.id;
        default:
            return table.ValueAt(place.number - 1, column - FirstOfDigest + 1);
    }
}

} // namespace shell
