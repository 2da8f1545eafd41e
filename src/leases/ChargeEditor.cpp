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

namespace {

/// Written back with the payment that the screen knew, a charge paid since would be owed again.
void CheckUnpaid(const RentLogEntry& entry, std::int32_t idRentLog) {
    const auto now = core::App().Connection.Scalar(
        "SELECT IdTransaction FROM RentLog WHERE IdRentLog = ?", {idRentLog});
    if (!now || (now->IsNull() ? 0 : now->AsLong()) == entry.idTransaction) return;
    throw platform::ConflictError(
        entry.idTransaction == 0
            ? "The charge was paid after it was opened. It was not saved."
            : "The payment of the charge was changed after it was opened. It was not saved.");
}

} // namespace

void SaveCharge(platform::Recordset& row, const RentLogEntry& entry) {
    platform::UnitOfWork unit(core::App().Connection);
    CheckUnpaid(entry, row["IdRentLog"].AsLong());
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
