#include "mortgages/LogTable.h"

#include <utility>

namespace mortgages {

core::RowTable<LogRow> LogTable(std::vector<LogRow> rows) {
    using enum platform::FieldType;
    const auto of = [](auto member) {
        return [member](const LogRow& row) { return row.entry.*member; };
    };
    return {std::move(rows),
            {{"IdMortgageLog", Long, &LogRow::idMortgageLog},
             {"Flags", Integer, of(&MortgageLogEntry::flags)},
             {"Date Posted", Date, of(&MortgageLogEntry::datePosted)},
             {"Category", Text, of(&MortgageLogEntry::category)},
             {"Description", Text, of(&MortgageLogEntry::description)},
             {"Principal", Currency, of(&MortgageLogEntry::principal)},
             {"Paydown", Currency, of(&MortgageLogEntry::payDown)},
             {"Interest", Currency, of(&MortgageLogEntry::interest)},
             {"Other", Currency, of(&MortgageLogEntry::other)},
             {"Total", Currency, &LogRow::total}}};
}

core::RowTable<PaymentCharge> ChargeTable(std::vector<PaymentCharge> charges) {
    using enum platform::FieldType;
    return {std::move(charges),
            {{"IdMortgageLog", Long, &PaymentCharge::idMortgageLog},
             {"Flags", Integer, &PaymentCharge::flags},
             {"Date", Date, &PaymentCharge::datePosted},
             {"Period", Integer, &PaymentCharge::period},
             {"Category", Text, &PaymentCharge::category},
             {"Description", Text, &PaymentCharge::description},
             {"Amount", Currency, &PaymentCharge::total}}};
}

} // namespace mortgages
