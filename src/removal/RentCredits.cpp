#include "removal/RentCredits.h"

#include <algorithm>

#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace removal {

using platform::Currency;
using platform::Recordset;

namespace {

constexpr std::string_view kMarkStart = "Returned ";
constexpr std::string_view kMarkEnd = ": ";
constexpr std::size_t kMarkLength = kMarkStart.size() + 10 + kMarkEnd.size();

/// Returns the mark that a description begins with; empty if it has none.
std::string MarkOf(const std::string& description) {
    const std::string mark = description.substr(0, kMarkLength);
    const bool isMark = mark.starts_with(kMarkStart) && mark.ends_with(kMarkEnd) &&
                        platform::Date::TryParse(mark.substr(kMarkStart.size(), 10)).has_value();
    return isMark ? mark : std::string();
}

/// Returns whether another payment of the lease was returned with this mark.
bool IsMarkOfOther(const std::string& mark, std::int32_t idLease, std::int32_t idReturn) {
    Recordset others = core::Read(
        "SELECT t.Description FROM (RentCredit AS c INNER JOIN RentLog AS o "
        "ON c.IdOrigin = o.IdRentLog) INNER JOIN Transactions AS t "
        "ON o.IdTransaction = t.IdTransaction WHERE (c.IdLease = ?) AND (c.IdReturn <> 0) AND "
        "(c.IdReturn <> ?)",
        {idLease, idReturn});
    for (; !others.Eof(); others.MoveNext()) {
        if (TextOf(others["Description"]).starts_with(mark)) return true;
    }
    return false;
}

/// Takes the mark off the payments of the lease that settle nothing.
void UnmarkEmptyPayments(const std::string& mark, std::int32_t idLease) {
    Recordset payments = core::Read(
        "SELECT t.IdTransaction, t.Description FROM Transactions AS t LEFT JOIN RentLog AS r "
        "ON t.IdTransaction = r.IdTransaction WHERE (t.IdLease = ?) AND (t.Amount = 0) AND "
        "(r.IdRentLog IS NULL)",
        {idLease});
    for (; !payments.Eof(); payments.MoveNext()) {
        const std::string text = TextOf(payments["Description"]);
        if (text.starts_with(mark))
            SetDescription(IdOf(payments["IdTransaction"]), text.substr(mark.size()));
    }
}

/// Returns the origins of credit that the payment brought or took in.
std::vector<std::int32_t> TouchedOrigins(std::int32_t idTransaction) {
    std::vector<std::int32_t> ids;
    for (const std::string_view field : {"IdRentLog", "IdOrigin"}) {
        Recordset rows = core::Read(
            "SELECT c.IdOrigin FROM RentCredit AS c INNER JOIN RentLog AS r "
            "ON c." +
                std::string(field) +
                " = r.IdRentLog "
                "WHERE r.IdTransaction = ?",
            {idTransaction});
        for (; !rows.Eof(); rows.MoveNext())
            ids.push_back(IdOf(rows[0]));
    }
    std::ranges::sort(ids);
    ids.erase(std::ranges::unique(ids).begin(), ids.end());
    return ids;
}

bool Reopen(std::string_view ids, std::int32_t idTransaction) {
    return core::Execute(
               "UPDATE RentLog SET IdTransaction = 0 WHERE (IdTransaction = ?) AND "
               "(IdRentLog IN (" +
                   std::string(ids) + "))",
               {idTransaction}) > 0;
}

void SetOpenAmount(std::int32_t idRentLog, Currency amount) {
    if (!amount.IsZero()) {
        core::Execute("UPDATE RentLog SET Amount = ? WHERE IdRentLog = ?", {amount, idRentLog});
        return;
    }
    ForgetCredit(idRentLog);
    core::Execute("DELETE * FROM RentLog WHERE IdRentLog = ?", {idRentLog});
}

Recordset OpenParts(std::int32_t idOrigin) {
    return core::Read(
        "SELECT r.IdRentLog, r.Amount FROM RentCredit AS c INNER JOIN RentLog AS r "
        "ON c.IdRentLog = r.IdRentLog WHERE (c.IdOrigin = ?) AND (r.IdTransaction = 0) "
        "ORDER BY r.IdRentLog",
        {idOrigin});
}

/// An open origin and its open credit cancel each other.
void Net(std::int32_t idOrigin) {
    Recordset origin = core::Read(
        "SELECT Amount FROM RentLog WHERE (IdRentLog = ?) AND (IdTransaction = 0)", {idOrigin});
    if (origin.Eof()) return;
    Currency owed = MoneyOf(origin["Amount"]);
    for (Recordset part = OpenParts(idOrigin); !part.Eof(); part.MoveNext()) {
        const Currency credit = -MoneyOf(part["Amount"]);
        const Currency both = std::min(owed, credit);
        if (both <= Currency()) continue;
        owed -= both;
        SetOpenAmount(IdOf(part["IdRentLog"]), both - credit);
    }
    SetOpenAmount(idOrigin, owed);
}

} // namespace

bool HasCredits() {
    return core::TableExists("RentCredit");
}

std::vector<CreditOrigin> OriginsOf(std::int32_t idTransaction) {
    std::vector<CreditOrigin> origins;
    if (!HasCredits()) return origins;
    Recordset rows = core::Read(
        "SELECT IdRentLog, Amount FROM RentLog WHERE (IdTransaction = ?) AND "
        "(IdRentLog IN (SELECT IdOrigin FROM RentCredit)) ORDER BY IdRentLog",
        {idTransaction});
    for (; !rows.Eof(); rows.MoveNext()) {
        CreditOrigin origin{IdOf(rows["IdRentLog"]), MoneyOf(rows["Amount"]), {}};
        for (Recordset part = OpenParts(origin.idRentLog); !part.Eof(); part.MoveNext())
            origin.open -= MoneyOf(part["Amount"]);
        origins.push_back(origin);
    }
    return origins;
}

bool ReleaseCredits(std::int32_t idTransaction) {
    if (!HasCredits()) return false;
    const std::vector<std::int32_t> origins = TouchedOrigins(idTransaction);
    const bool tookIn = Reopen("SELECT IdRentLog FROM RentCredit", idTransaction);
    const bool brought = Reopen("SELECT IdOrigin FROM RentCredit", idTransaction);
    for (const std::int32_t idOrigin : origins)
        Net(idOrigin);
    return tookIn || brought;
}

void ForgetCredit(std::int32_t idRentLog) {
    if (!HasCredits()) return;
    core::Execute("DELETE * FROM RentCredit WHERE (IdRentLog = ?) OR (IdOrigin = ?)",
                  {idRentLog, idRentLog});
}

void ForgetLeaseCredits(std::int32_t idLease) {
    if (HasCredits()) core::Execute("DELETE * FROM RentCredit WHERE IdLease = ?", {idLease});
    if (core::TableExists("LeaseCredit"))
        core::Execute("DELETE * FROM LeaseCredit WHERE IdLease = ?", {idLease});
}

std::string ReturnMark(platform::Date day) {
    return std::string(kMarkStart) + day.ToText() + std::string(kMarkEnd);
}

std::string KeepReturnMark(std::int32_t idTransaction, const std::string& description) {
    const auto stored = core::ReadValue(
        "SELECT Description FROM Transactions WHERE IdTransaction = ?", {idTransaction});
    const std::string mark = MarkOf(platform::AsOr0<std::string>(stored));
    return description.starts_with(mark) ? description : mark + description;
}

void SetDescription(std::int32_t idTransaction, const std::string& description) {
    core::Execute("UPDATE Transactions SET Description = ? WHERE IdTransaction = ?",
                  {description, idTransaction});
}

void UndoReturn(std::int32_t idReturn) {
    if (!HasCredits()) return;
    Recordset payment = core::Read(
        "SELECT t.IdTransaction, t.Description, c.IdLease FROM (RentCredit AS c INNER JOIN RentLog "
        "AS o ON c.IdOrigin = o.IdRentLog) INNER JOIN Transactions AS t "
        "ON o.IdTransaction = t.IdTransaction WHERE c.IdReturn = ?",
        {idReturn});
    if (!payment.Eof()) {
        const std::string text = TextOf(payment["Description"]);
        const std::string mark = MarkOf(text);
        const std::int32_t idLease = IdOf(payment["IdLease"]);
        SetDescription(IdOf(payment["IdTransaction"]), text.substr(mark.size()));
        if (!mark.empty() && !IsMarkOfOther(mark, idLease, idReturn))
            UnmarkEmptyPayments(mark, idLease);
    }
    core::Execute("UPDATE RentCredit SET IdReturn = 0 WHERE IdReturn = ?", {idReturn});
}

} // namespace removal
