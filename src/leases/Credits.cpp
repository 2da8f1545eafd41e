#include "leases/Credits.h"

#include "core/Globals.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "removal/RentCredits.h"

namespace leases {

using platform::Currency;
using platform::Recordset;
using removal::HasCredits;

namespace {

constexpr std::string_view kReturns =
    "SELECT o.IdTransaction, c.IdReturn FROM (RentCredit AS c INNER JOIN RentLog AS o "
    "ON c.IdOrigin = o.IdRentLog) INNER JOIN RentLog AS p ON c.IdRentLog = p.IdRentLog "
    "WHERE (c.IdReturn <> 0) AND (p.IdTransaction = c.IdReturn) AND ";

} // namespace

void TieCredit(std::int32_t idRentLog, std::int32_t idOrigin, std::int32_t idLease,
               std::int32_t idReturn) {
    core::Execute(
        "INSERT INTO RentCredit (IdRentLog, IdOrigin, IdLease, IdReturn) "
        "VALUES (?, ?, ?, ?)",
        {idRentLog, idOrigin, idLease, idReturn});
}

void TiePart(std::int32_t idPart, std::int32_t idWhole) {
    if (idPart == 0 || !HasCredits()) return;
    Recordset whole = core::Read(
        "SELECT IdOrigin, IdLease, IdReturn FROM RentCredit WHERE IdRentLog = ?", {idWhole});
    if (whole.Eof()) return;
    TieCredit(idPart, IdOf(whole["IdOrigin"]), IdOf(whole["IdLease"]), IdOf(whole["IdReturn"]));
}

bool IsOrigin(std::int32_t idRentLog) {
    return HasCredits() &&
           core::Exists("SELECT IdOrigin FROM RentCredit WHERE IdOrigin = ?", {idRentLog});
}

void CheckNotTied(std::int32_t idRentLog) {
    if (!HasCredits()) return;
    const bool isTied = core::Exists(
        "SELECT o.IdRentLog FROM RentLog AS o, RentCredit AS c WHERE (o.IdRentLog = ?) AND "
        "(o.IdTransaction <> 0) AND ((c.IdOrigin = o.IdRentLog) OR "
        "((c.IdRentLog = o.IdRentLog) AND (c.IdReturn <> 0)))",
        {idRentLog});
    if (!isTied) return;
    throw platform::ConflictError(
        "Money that was paid ahead or returned stays with its payment. Delete the payment or the "
        "return instead.");
}

std::int32_t ReturnOf(std::int32_t idTransaction) {
    if (idTransaction == 0 || !HasCredits()) return 0;
    Recordset row = core::Read(std::string(kReturns) + "(o.IdTransaction = ?)", {idTransaction});
    return row.Eof() ? 0 : IdOf(row["IdReturn"]);
}

std::int32_t PaymentReturnedBy(std::int32_t idTransaction) {
    if (idTransaction == 0 || !HasCredits()) return 0;
    Recordset row = core::Read(std::string(kReturns) + "(c.IdReturn = ?)", {idTransaction});
    return row.Eof() ? 0 : IdOf(row["IdTransaction"]);
}

Currency CreditBalance(std::int32_t idLease, TransactionClass rentClass) {
    const auto sum = core::ReadValue(
        "SELECT -1 * Sum(Amount) FROM RentLog WHERE (IdLease = ?) AND (Class = ?) AND "
        "(IdTransaction = 0) AND (Amount < 0)",
        {idLease, static_cast<std::int16_t>(rentClass)});
    return platform::AsOr0<Currency>(sum);
}

std::vector<OpenCredit> ReadCredits(std::int32_t idLease) {
    Recordset rows = core::Read(
        "SELECT IdRentLog, DatePosted, Class, Amount FROM RentLog WHERE (IdLease = ?) AND "
        "(IdTransaction = 0) AND (Amount < 0) AND (Class IN (1, 2)) AND (Category <> ?) "
        "ORDER BY DateValue(DatePosted), IdRentLog",
        {idLease, kCategoryDiscount});
    std::vector<OpenCredit> credits;
    for (; !rows.Eof(); rows.MoveNext()) {
        credits.push_back({IdOf(rows["IdRentLog"]), DateOf(rows["DatePosted"]),
                           TransactionClass{ShortOf(rows["Class"])}, -MoneyOf(rows["Amount"])});
    }
    return credits;
}

bool SettlesCharges(std::int32_t idLease) {
    return core::TableExists("LeaseCredit") &&
           core::Exists(
               "SELECT IdLease FROM LeaseCredit WHERE (IdLease = ?) AND "
               "(SettleCharges = True)",
               {idLease});
}

bool AnySettlesCharges() {
    return core::TableExists("LeaseCredit") &&
           core::Exists("SELECT IdLease FROM LeaseCredit WHERE SettleCharges = True");
}

void SetSettlesCharges(std::int32_t idLease, bool settles) {
    platform::UnitOfWork unit(core::App().Connection);
    const auto changed = core::Execute("UPDATE LeaseCredit SET SettleCharges = ? WHERE IdLease = ?",
                                       {settles, idLease});
    if (changed == 0 && settles) {
        core::Execute("INSERT INTO LeaseCredit (IdLease, SettleCharges) VALUES (?, True)",
                      {idLease});
    }
    unit.Commit();
}

} // namespace leases
