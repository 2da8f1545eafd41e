#include "mortgages/MortgagePayment.h"

#include <algorithm>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace mortgages {

using platform::Currency;
using platform::Recordset;

namespace {

books::Party AccountOf(std::int32_t id) {
    return {core::kAccount, id, core::GetDescription(core::kAccount, id, 0, false)};
}

/// Reads one party: the account's id and present name, or the stored name without an account.
books::Party ReadParty(Recordset& row, std::string_view idField, std::string_view nameField) {
    const std::int32_t id = IdOf(row[idField]);
    books::Party party = AccountOf(id);
    if (id == 0 || party.description.empty()) party.description = TextOf(row[nameField]);
    return party;
}

PaymentCharge ChargeOf(Recordset& rows) {
    PaymentCharge charge;
    charge.idMortgageLog = rows["IdMortgageLog"].AsLong();
    charge.idTransaction = IdOf(rows["IdTransaction"]);
    charge.datePosted = DateOf(rows["DatePosted"]);
    charge.period = ShortOf(rows["Period"]);
    charge.category = TextOf(rows["Category"]);
    charge.payDown = MoneyOf(rows["PayDown"]);
    charge.total = MoneyOf(rows["Total"]);
    charge.description = TextOf(rows["Description"]);
    charge.selected = rows["Selected"].AsText() == "True";
    charge.flags = LogFlags{ShortOf(rows["Flags"])};
    return charge;
}

bool WasSelected(const std::vector<PaymentCharge>& charges, std::int32_t id, bool otherwise) {
    const auto known = std::find_if(charges.begin(), charges.end(),
                                    [&](const auto& at) { return at.idMortgageLog == id; });
    return known == charges.end() ? otherwise : known->selected;
}

} // namespace

Currency MortgagePayment::PaidAmount() const {
    Currency total = extraPrincipal;
    for (const PaymentCharge& charge : charges) {
        if (charge.selected) total += charge.total;
    }
    return total;
}

std::int16_t MortgagePayment::FromPeriod() const {
    std::int16_t lowest = 0;
    for (const PaymentCharge& charge : charges) {
        if (charge.IsBasePayment() && (lowest == 0 || charge.period < lowest))
            lowest = charge.period;
    }
    return lowest;
}

MortgagePayment ProposeMortgagePayment(std::int32_t idMortgage) {
    Recordset row =
        core::Read("SELECT Description, IdLastPmt, IdMortgagee FROM Mortgage WHERE IdMortgage = ?",
                   {idMortgage});
    if (row.Eof()) {
        throw platform::DatabaseError("There is no mortgage " + std::to_string(idMortgage));
    }
    MortgagePayment payment;
    payment.idMortgage = idMortgage;
    payment.dateEffective = platform::Today();
    payment.from = AccountOf(IdOf(row["IdLastPmt"]));
    payment.to = AccountOf(IdOf(row["IdMortgagee"]));
    payment.paymentType = kCategoryPayment;
    payment.description = "Mortgage Payment for " + TextOf(row["Description"]);
    ReadCharges(payment);
    return payment;
}

MortgagePayment ReadMortgagePayment(std::int32_t idTransaction) {
    Recordset row =
        core::Read("SELECT * FROM Transactions WHERE (IdTransaction = ?)", {idTransaction});
    if (row.Eof()) {
        throw platform::DatabaseError("There is no transaction " + std::to_string(idTransaction));
    }
    MortgagePayment payment;
    payment.idTransaction = idTransaction;
    payment.idMortgage = IdOf(row["IdMortgage"]);
    payment.dateEffective = DateOf(row["DateEffective"]);
    payment.from = ReadParty(row, "DebitId", "DebitDesc");
    payment.to = ReadParty(row, "CreditId", "CreditDesc");
    payment.checkNumber = TextOf(row["CheckNum"]);
    payment.paymentType = TextOf(row["TaxCategory"]);
    payment.description = TextOf(row["Description"]);
    ReadCharges(payment);
    return payment;
}

void ReadCharges(MortgagePayment& payment) {
    // -1, because a new payment has settled no charges: 0 would find the open rows of every
    // mortgage.
    const std::int32_t settledBy = payment.idTransaction == 0 ? -1 : payment.idTransaction;
    Recordset rows = core::Read(
        "SELECT *, 'True' AS [Selected] FROM MortgageLog WHERE (IdTransaction = ?) "
        "UNION SELECT *, 'False' AS [Selected] FROM MortgageLog "
        "WHERE (IdMortgage = ?) AND (IdTransaction = 0) ORDER BY DateValue(DatePosted)",
        {settledBy, payment.idMortgage});
    std::vector<PaymentCharge> charges;
    payment.idPaymentRow = 0;
    for (; !rows.Eof(); rows.MoveNext()) {
        PaymentCharge charge = ChargeOf(rows);
        if (charge.selected && charge.flags == LogFlags::Payment) {
            payment.idPaymentRow = charge.idMortgageLog;
            continue;
        }
        charge.selected = WasSelected(payment.charges, charge.idMortgageLog, charge.selected);
        charges.push_back(std::move(charge));
    }
    // Charges of one day stay in the order in which they were posted.
    std::sort(charges.begin(), charges.end(), [](const auto& a, const auto& b) {
        return std::pair(a.datePosted, a.idMortgageLog) < std::pair(b.datePosted, b.idMortgageLog);
    });
    payment.charges = std::move(charges);
}

std::string_view Select(MortgagePayment& payment, std::size_t charge, bool selected) {
    PaymentCharge& at = payment.charges.at(charge);
    if (at.IsBasePayment()) {
        const auto begin = payment.charges.begin();
        const auto here = begin + static_cast<std::ptrdiff_t>(charge);
        const auto isOpenGap = [](const PaymentCharge& other) {
            return other.IsBasePayment() && !other.selected;
        };
        const auto isTicked = [](const PaymentCharge& other) {
            return other.IsBasePayment() && other.selected;
        };
        if (selected && std::any_of(begin, here, isOpenGap))
            return "Previous base payments must be selected";
        if (!selected && std::any_of(here + 1, payment.charges.end(), isTicked))
            return "Following base payments must not be selected";
    }
    at.selected = selected;
    return {};
}

void SelectAll(MortgagePayment& payment, ChargeChoice choice, bool selected) {
    const std::size_t count = payment.charges.size();
    for (std::size_t i = 0; i < count; ++i) {
        // Deselecting begins with the last one, so that no gap arises.
        const std::size_t at = selected ? i : count - 1 - i;
        if (choice == ChargeChoice::All || payment.charges[at].IsBasePayment())
            Select(payment, at, selected);
    }
}

} // namespace mortgages
