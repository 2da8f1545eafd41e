#include "leases/RentLog.h"

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"

namespace leases {

using platform::Recordset;
using platform::Value;

namespace {

constexpr std::string_view kInsertEntry =
    "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Category, Amount, "
    "Description, Flags) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)";

constexpr std::string_view kUpdateEntry =
    "UPDATE RentLog SET IdLease = ?, IdTransaction = ?, DatePosted = ?, Class = ?, Category = ?, "
    "Amount = ?, Description = ?, Flags = ? WHERE IdRentLog = ?";

Value Code(TransactionClass code) {
    return static_cast<std::int16_t>(code);
}
Value Code(RentFlags code) {
    return static_cast<std::int16_t>(code);
}

void Insert(std::int32_t idRentLog, const RentLogEntry& entry) {
    core::Execute(kInsertEntry, {idRentLog, entry.idLease, entry.idTransaction,
                                 entry.datePosted.ToText(), Code(entry.rentClass), entry.category,
                                 entry.amount, entry.description, Code(entry.flags)});
}

/// Every writer announces its rows, so that no routine that uses it can forget to.
void Announce() {
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
}

void CopyFields(Recordset& from, Recordset& to) {
    for (std::size_t i = 0; i < from.FieldCount(); ++i) {
        const Value value = from[i].Value();
        to[from[i].Name()].Set(value.IsNull() ? Value(platform::Currency()) : value);
    }
}

} // namespace

RentLogEntry EntryOf(std::int32_t idLease, const Charge& charge) {
    return {.idLease = idLease,
            .datePosted = charge.date,
            .rentClass = ClassOf(charge.kind),
            .category = std::string(CategoryOf(charge.kind)),
            .amount = charge.amount,
            .description = DescriptionOf(charge),
            .flags = FlagsOf(charge.kind)};
}

bool RewriteRentLog(const RentLogEntry& entry, std::int32_t idRentLog) {
    const auto rows =
        core::Execute(kUpdateEntry, {entry.idLease, entry.idTransaction, entry.datePosted.ToText(),
                                     Code(entry.rentClass), entry.category, entry.amount,
                                     entry.description, Code(entry.flags), idRentLog});
    if (rows > 0) Announce();
    return rows > 0;
}

std::int32_t WriteRentLog(const RentLogEntry& entry, std::int32_t idRentLog) {
    if (entry.amount.IsZero()) return idRentLog;
    if (idRentLog != 0 && RewriteRentLog(entry, idRentLog)) return idRentLog;
    const std::int32_t id = core::NextId();
    Insert(id, entry);
    Announce();
    return id;
}

std::int32_t WriteCharges(std::int32_t idLease, std::span<const Charge> charges) {
    if (charges.empty()) return 0;
    const std::int32_t first = core::NextIds(static_cast<std::int32_t>(charges.size()));
    std::int32_t id = first;
    for (const Charge& charge : charges)
        Insert(id++, EntryOf(idLease, charge));
    Announce();
    return first;
}

void WriteOptionCredit(std::int32_t idLease, platform::Date day, platform::Currency amount) {
    WriteRentLog({.idLease = idLease,
                  .datePosted = day,
                  .rentClass = TransactionClass::OptionCredit,
                  .category = std::string(kCategoryOptionCredit),
                  .amount = amount,
                  .description = std::string(kCategoryOptionCredit)});
}

void SetLeaseBalances(Recordset& row) {
    const Value idLease = row["IdLease"].Value();
    Recordset sums = core::Read(
        "SELECT Sum(IIf(Class = 1 AND IdTransaction = 0, Amount, 0)) AS RentDue, "
        "Sum(IIf(Class = 2 AND IdTransaction = 0, Amount, 0)) AS SubsDue, "
        "Sum(IIf(Class = 4, Amount, 0)) AS OptionBalance, "
        "Sum(IIf(Class = 3 AND Flags = 0, Amount, 0)) AS DepositTotal, "
        "-1 * Sum(IIf(Class = 3 AND Flags = 2, Amount, 0)) AS DepositPaid "
        "FROM RentLog WHERE IdLease = ?",
        {idLease});
    CopyFields(sums, row);
    sums = core::Read(
        "SELECT Sum(IIf(Flags = 3, Amount, 0)) AS DepositRefunded, "
        "Sum(IIf(Flags = 4, Amount, 0)) AS DepositCharged "
        "FROM Transactions WHERE IdLease = ? AND Class = 3",
        {idLease});
    CopyFields(sums, row);

    const auto money = [&](std::string_view field) { return row[field].AsCurrency(); };
    row["DepositDue"].Set(money("DepositTotal") - money("DepositPaid"));
    row["DepositBalance"].Set(money("DepositPaid") -
                              (money("DepositRefunded") + money("DepositCharged")));
}

} // namespace leases
