#include "shell/SampleExpenses.h"

#include "core/Configuration.h"
#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"

namespace shell {

using books::Party;
using platform::Currency;
using platform::Date;
using platform::Recordset;

namespace {

constexpr unsigned kBillingDay = 5;

std::vector<Party> AccountsOfType(const char* type) {
    std::vector<Party> accounts;
    Recordset rows =
        core::Read("SELECT IdAccount, ShowAs FROM Account WHERE AccountType = ?", {type});
    for (; !rows.Eof(); rows.MoveNext()) {
        accounts.push_back({core::kAccount, rows["IdAccount"].AsLong(), rows["ShowAs"].AsText()});
    }
    return accounts;
}

/// Returns an amount that varies from bill to bill, but is the same whenever the sample is made.
Currency AmountOf(std::int32_t idBuilding, Date day, int from, int spread) {
    const auto mixed = static_cast<std::uint32_t>(idBuilding) * 2654435761U +
                       static_cast<std::uint32_t>(day.Serial()) * 40503U;
    return Currency::FromUnits(from) +
           Currency::FromScaled(std::int64_t{mixed % static_cast<std::uint32_t>(spread * 100)} *
                                (Currency::kScale / 100));
}

void Post(const Party& bank, const std::vector<Party>& payees, std::int32_t idBuilding, Date day,
          Currency amount, const char* category, const char* description,
          const std::string& checkNumber = {}) {
    if (payees.empty()) return;
    books::Transaction bill;
    bill.dateEffective = day;
    bill.debit = bank;
    bill.credit = payees[static_cast<std::size_t>(idBuilding) % payees.size()];
    bill.amount = amount;
    bill.taxCategory = category;
    bill.ien = books::Ien::Expense;
    bill.description = description;
    bill.checkNumber = checkNumber;
    bill.idBuilding = idBuilding;
    books::PostTransaction(bill);
}

/// Repairs are paid by checks, numbered in order.
std::string NextCheck() {
    constexpr std::int32_t kFirstCheck = 1001;
    const platform::Value written = core::ReadValue(
        "SELECT Count(*) FROM Transactions WHERE CheckNum <> '' AND CheckNum <> 'AutoEvent'");
    return std::to_string(kFirstCheck + written.AsLong());
}

} // namespace

SampleExpenses::SampleExpenses()
    : utilities_(AccountsOfType("Utility")), vendors_(AccountsOfType("Vendor")) {
    const std::int32_t idBank = core::Config().DefaultRentAccount;
    bank_ = {core::kAccount, idBank, core::GetDescription(core::kAccount, idBank)};
    Recordset rows = core::Read("SELECT IdBuilding FROM Building");
    for (; !rows.Eof(); rows.MoveNext())
        buildings_.push_back(rows["IdBuilding"].AsLong());
}

void SampleExpenses::Pay(Date day) const {
    if (day.Day() != kBillingDay) return;
    constexpr int kMonthsBetweenRepairs = 3;
    for (const std::int32_t idBuilding : buildings_) {
        Post(bank_, utilities_, idBuilding, day, AmountOf(idBuilding, day, 60, 90), "Utilities",
             "Monthly bill");
        const bool repairs =
            (idBuilding + static_cast<int>(day.Month())) % kMonthsBetweenRepairs == 0;
        if (repairs) {
            Post(bank_, vendors_, idBuilding, day, AmountOf(idBuilding, day, 80, 300), "Repairs",
                 "Repairs and upkeep", NextCheck());
        }
    }
}

} // namespace shell
