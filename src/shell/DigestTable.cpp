#include "shell/DigestTable.h"

#include <utility>

#include "platform/values/Text.h"

namespace shell {

using core::MakeColumn;
using platform::FieldType;
using platform::Value;

namespace {

enum Column : std::size_t { Number, Day, What, Reason, Amount, Record, Taken };

Value FaultValue(const DigestFault& fault, std::size_t column) {
    switch (column) {
        case What:
            return "Not updated";
        case Reason:
            return fault.reason;
        case Record:
            return fault.description;
        default:
            return {};
    }
}

} // namespace

DigestTable::DigestTable(const RunDigest& digest, std::shared_ptr<const TakenRows> takenBack)
    : digest_(digest),
      takenBack_(std::move(takenBack)),
      columns_({MakeColumn("No.", FieldType::Long), MakeColumn("Day", FieldType::Date),
                MakeColumn("What", FieldType::Text), MakeColumn("Reason", FieldType::Text),
                MakeColumn("Amount", FieldType::Currency), MakeColumn("Record", FieldType::Text),
                MakeColumn("Taken Back", FieldType::Date)}) {}

std::int64_t DigestTable::RowCount() const {
    return std::ssize(digest_.Faults()) + std::ssize(digest_.Rows());
}

const DigestRow* DigestTable::PostedRow(std::int32_t number) const {
    const std::int64_t posted = number - 1 - std::ssize(digest_.Faults());
    if (posted < 0 || posted >= std::ssize(digest_.Rows())) return nullptr;
    return &digest_.Rows()[static_cast<std::size_t>(posted)];
}

const DigestFault* DigestTable::FaultOf(std::int32_t number) const {
    if (number < 1 || number > std::ssize(digest_.Faults())) return nullptr;
    return &digest_.Faults()[static_cast<std::size_t>(number - 1)];
}

std::string DigestTable::ReasonOf(std::int32_t number) const {
    if (const DigestRow* const row = PostedRow(number)) return core::ReasonText(row->reason);
    const DigestFault* const fault = FaultOf(number);
    return fault != nullptr ? fault->reason : std::string();
}

std::optional<RecordPlace> DigestTable::RecordOf(std::int32_t number) const {
    RecordPlace place;
    if (const DigestRow* const row = PostedRow(number)) {
        place = {row->recordKind, row->recordId};
    } else if (const DigestFault* const fault = FaultOf(number)) {
        place = {fault->recordKind, fault->recordId};
    }
    // If a whole step of the run fails, there is no record to open.
    if (place.id == 0) return std::nullopt;
    return place;
}

platform::Date DigestTable::TakenOn(const DigestRow& row) const {
    if (!takenBack_) return {};
    const auto found = FindTaken(*takenBack_, row);
    return found == takenBack_->end() ? platform::Date() : found->second.takenOn;
}

Value DigestTable::PostedValue(const DigestRow& row, std::size_t column) const {
    switch (column) {
        case Day:
            return row.date;
        case What:
            return std::string(platform::Trim(row.category));
        case Reason:
            return core::ReasonText(row.reason);
        case Amount:
            return row.amount;
        case Record:
            return digest_.DescriptionOf(row);
        case Taken:
            return TakenOn(row);
        default:
            return {};
    }
}

Value DigestTable::ValueAt(std::int64_t row, std::size_t column) const {
    const auto number = static_cast<std::int32_t>(row + 1);
    if (column == Number) return number;
    if (const DigestFault* const fault = FaultOf(number)) return FaultValue(*fault, column);
    return PostedValue(*PostedRow(number), column);
}

} // namespace shell
