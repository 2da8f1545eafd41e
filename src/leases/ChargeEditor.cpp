#include "leases/ChargeEditor.h"

#include "core/Globals.h"
#include "leases/LeaseEditor.h"
#include "platform/database/FieldReadings.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"

namespace leases {

std::string_view ChargeCaption(RentClass rentClass) {
    switch (rentClass) {
        case RentClass::Subsidy:
            return " Editing Subsidy Charge";
        case RentClass::Deposit:
            return " Editing Deposit Charge";
        case RentClass::OptionCredit:
            return " Editing Lease Option Charge";
        case RentClass::Rent:
            break;
    }
    return " Editing Rent Charge";
}

std::vector<std::string> ChargeCategories(RentClass rentClass) {
    switch (rentClass) {
        case RentClass::Subsidy:
            return {"Rent Subsidy", "Late Fee",    "Utilities",
                    "NSF Fee",      "Service Fee", "Misc Charge"};
        case RentClass::Deposit:
            return {"Damage Deposit", "Cleaning Deposit", "Pet Deposit", "Key Deposit",
                    "Misc Deposit"};
        case RentClass::OptionCredit:
            return {"Option Credit", "Misc Credit"};
        case RentClass::Rent:
            break;
    }
    return {"Rent",    "Late Fee",    "Utilities",  "Application Fee",
            "NSF Fee", "Service Fee", "Misc Charge"};
}

platform::Currency InCents(platform::Currency amount) {
    return platform::StrToMoney(platform::FormatNumber(amount, "#.00"));
}

void SaveCharge(platform::Recordset& row) {
    platform::UnitOfWork unit(core::App().Connection);
    const std::int32_t idLease = platform::IdOf(row["IdLease"]);
    row.Update();
    StoreBalances(idLease);
    unit.Commit();
}

void SaveCharge(platform::Recordset& row, const RentLogEntry& entry) {
    row["IdLease"].Set(entry.idLease);
    row["IdTransaction"].Set(entry.idTransaction);
    row["DatePosted"].Set(entry.datePosted.ToText());
    row["Class"].Set(static_cast<std::int16_t>(entry.rentClass));
    row["Category"].Set(entry.category);
    row["Amount"].Set(InCents(entry.amount));
    row["Description"].Set(entry.description);
    row["Flags"].Set(static_cast<std::int16_t>(entry.flags));
    SaveCharge(row);
}

} // namespace leases
