#include "shell/DigestTable.h"

#include "platform/values/Text.h"

namespace shell {

using platform::FieldType;

namespace {

enum Column : std::size_t { Number, Day, Posted, For, Amount };

core::TableColumn MakeColumn(std::string_view caption, FieldType type) {
    return {std::string(caption), type, core::FormatOf(type, caption)};
}

} // namespace

DigestTable::DigestTable(const RunDigest& digest)
    : digest_(digest),
      columns_({MakeColumn("No.", FieldType::Long), MakeColumn("Date", FieldType::Date),
                MakeColumn("Posted", FieldType::Text), MakeColumn("For", FieldType::Text),
                MakeColumn("Amount", FieldType::Currency)}) {}

std::int64_t DigestTable::RowCount() const {
    return std::ssize(digest_.Faults()) + std::ssize(digest_.Rows());
}

const DigestRow* DigestTable::PostedRow(std::int32_t number) const {
    const std::int64_t posted = number - 1 - std::ssize(digest_.Faults());
    if (posted < 0 || posted >= std::ssize(digest_.Rows())) return nullptr;
    return &digest_.Rows()[static_cast<std::size_t>(posted)];
}

platform::Value DigestTable::ValueAt(std::int64_t row, std::size_t column) const {
    const auto number = static_cast<std::int32_t>(row + 1);
    const DigestRow* const posted = PostedRow(number);
    switch (column) {
        case Number:
            return number;
        case Day:
            return posted ? platform::Value(posted->date) : platform::Value();
        case Posted:
            return posted ? std::string(platform::Trim(posted->category))
                          : std::string("Not updated");
        case For:
            return posted ? digest_.DescriptionOf(*posted)
                          : digest_.Faults()[static_cast<std::size_t>(row)];
        case Amount:
            return posted ? platform::Value(posted->amount) : platform::Value();
        default:
            return {};
    }
}

} // namespace shell
