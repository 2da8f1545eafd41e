#include "leases/ChargeEditor.h"

#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/Credits.h"
#include "leases/LeaseEditor.h"
#include "platform/database/FieldReadings.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"

namespace leases {

std::string_view ChargeCaption(TransactionClass rentClass) {
    if (rentClass == TransactionClass::Subsidy) return " Editing Subsidy Charge";
    if (rentClass == TransactionClass::Deposit) return " Editing Deposit Charge";
    if (rentClass == TransactionClass::OptionCredit) return " Editing Lease Option Charge";
    return " Editing Rent Charge";
}

std::vector<std::string> ChargeCategories(TransactionClass rentClass) {
    if (rentClass == TransactionClass::Deposit)
        return {"Damage Deposit", "Cleaning Deposit", "Pet Deposit", "Key Deposit", "Misc Deposit"};
    if (rentClass == TransactionClass::OptionCredit) return {"Option Credit", "Misc Credit"};
    if (rentClass == TransactionClass::Subsidy)
        return {"Rent Subsidy", "Late Fee", "Utilities", "NSF Fee", "Service Fee", "Misc Charge"};
    return {"Rent",    "Late Fee",    "Utilities",  "Application Fee",
            "NSF Fee", "Service Fee", "Misc Charge"};
}

platform::Currency InCents(platform::Currency amount) {
    return platform::StrToMoney(platform::FormatNumber(amount, "#.00"));
}

namespace {

/// Refuses to change an amount that its payment relies on.
void CheckAmount(platform::Recordset& row) {
    const std::int32_t id = platform::IdOf(row["IdRentLog"]);
    const auto stored = core::ReadValue("SELECT Amount FROM RentLog WHERE IdRentLog = ?", {id});
    if (platform::AsOr0<platform::Currency>(stored) != platform::MoneyOf(row["Amount"]))
        CheckNotTied(id);
}

/// Refuses a new charge of a deleted lease, which nobody would owe.
void CheckLease(std::int32_t idRentLog, std::int32_t idLease) {
    if (core::RecordExists(core::kLease, idLease) || core::RecordExists(core::kRentLog, idRentLog))
        return;
    throw platform::ConflictError(
        "The lease was deleted after the charge was opened. It was not saved.");
}

} // namespace

void SaveCharge(platform::Recordset& row, std::int32_t idTransactionRead) {
    platform::UnitOfWork unit(core::App().Connection);
    // A charge paid since then would be settled by a payment of another amount.
    if (platform::IdOf(row["IdTransaction"]) != idTransactionRead) {
        throw platform::ConflictError(
            idTransactionRead == 0
                ? "The charge was paid after it was opened. It was not saved."
                : "The payment of the charge was changed after it was opened. It was not saved.");
    }
    CheckAmount(row);
    const std::int32_t idLease = platform::IdOf(row["IdLease"]);
    CheckLease(platform::IdOf(row["IdRentLog"]), idLease);
    row.Update();
    StoreBalances(idLease);
    unit.Commit();
}

} // namespace leases
