#include "leases/RentSplit.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/ChargeEditor.h"
#include "leases/Credits.h"
#include "leases/LeaseEditor.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "removal/DeleteRecord.h"

namespace leases {

using platform::Currency;
using platform::Recordset;

namespace {

RentLogEntry ReadEntry(Recordset& row) {
    return {.idLease = row["IdLease"].AsLong(),
            .idTransaction = row["IdTransaction"].AsLong(),
            .datePosted = DateOf(row["DatePosted"]),
            .rentClass = TransactionClass{row["Class"].AsInteger()},
            .category = TextOf(row["Category"]),
            .amount = MoneyOf(row["Amount"]),
            .description = TextOf(row["Description"]),
            .flags = RentFlags{ShortOf(row["Flags"])}};
}

void OpenCharge(Recordset& row, std::int32_t idRentLog) {
    row = core::Read("SELECT * FROM RentLog WHERE IdRentLog = ?", {idRentLog});
}

/// Refuses a charge that was changed since it was read: if it has been paid, its parts would be
/// owed a second time.
void CheckUnchanged(const RentSplit& split) {
    Recordset row;
    OpenCharge(row, split.idRentLog);
    if (!row.Eof()) {
        const RentLogEntry now = ReadEntry(row);
        const RentLogEntry& then = split.charge;
        if (now.idTransaction == then.idTransaction && now.amount == then.amount &&
            now.flags == then.flags) {
            return;
        }
    }
    throw platform::ConflictError(
        "The charge was changed or removed since it was read, so it can't be split.");
}

/// Refuses to split a row without which its payment would no longer add up. Money that is owed
/// again, since its payment was returned or deleted, is a charge like any other.
void CheckCredit(const RentLogEntry& charge, std::int32_t idRentLog) {
    if (charge.idTransaction == 0 || !IsOrigin(idRentLog)) return;
    throw platform::ConflictError(
        "Money that was paid ahead can't be split where the payment has it. Split the credit.");
}

} // namespace

bool RentSplit::LosesRent() const {
    return IsPeriodRent() && parts[rentPart].amount.IsZero();
}

Currency RentSplit::Missing() const {
    return charge.amount - (parts[0].amount + parts[1].amount);
}

std::string_view SplitCaption(TransactionClass rentClass) {
    if (rentClass == TransactionClass::Subsidy) return " Splitting Subsidy Charge";
    if (rentClass == TransactionClass::Deposit) return " Splitting Deposit Charge";
    return " Splitting Rent Charge";
}

std::vector<std::string> SplitCategories(TransactionClass rentClass) {
    std::vector<std::string> words = ChargeCategories(rentClass);
    if (rentClass == TransactionClass::Rent) words.insert(words.begin() + 1, "Deferred Rent");
    return words;
}

std::optional<RentSplit> ReadSplit(std::int32_t idRentLog) {
    Recordset row;
    OpenCharge(row, idRentLog);
    if (row.Eof()) return std::nullopt;
    RentSplit split;
    split.idRentLog = idRentLog;
    split.charge = ReadEntry(row);
    const RentLogEntry& charge = split.charge;
    split.parts[0] = {charge.datePosted, charge.category, charge.amount, charge.description};
    split.parts[1] = {charge.datePosted, charge.category, {}, "Deferred " + charge.description};
    return split;
}

std::array<std::int32_t, 2> SaveSplit(const RentSplit& split) {
    platform::UnitOfWork unit(core::App().Connection);
    CheckUnchanged(split);
    CheckCredit(split.charge, split.idRentLog);
    std::array<std::int32_t, 2> parts = {};
    for (std::size_t i = 0; i < split.parts.size(); ++i) {
        const SplitPart& part = split.parts[i];
        const bool isRent = split.IsPeriodRent() && split.rentPart == i;
        parts[i] = WriteRentLog({.idLease = split.charge.idLease,
                                 .idTransaction = split.charge.idTransaction,
                                 .datePosted = part.date,
                                 .rentClass = split.charge.rentClass,
                                 .category = part.category,
                                 .amount = part.amount,
                                 .description = part.description,
                                 .flags = isRent ? RentFlags::PeriodRent : RentFlags::Ordinary});
    }
    for (const std::int32_t part : parts)
        TiePart(part, split.idRentLog);
    removal::RemoveRecord(core::kRentLog, split.idRentLog, removal::Tell::Nobody);
    StoreBalances(split.charge.idLease);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    unit.Commit();
    return parts;
}

} // namespace leases
