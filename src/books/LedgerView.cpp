#include "books/LedgerView.h"

#include <fmt/core.h>

#include "core/RecordKinds.h"

namespace books {

namespace {

constexpr std::string_view kDate = "DateValue(DateEffective) AS [Effective Date]";

std::string DateFilter(int days, platform::Date today) {
    if (days <= 0) return {};
    return fmt::format("AND (DateValue(DateEffective) >= #{}#) ",
                       platform::DateAdd(platform::Interval::Day, -days, today).ToText());
}

std::string AccountSql(std::int32_t id, const std::string& filter) {
    const auto half = [&](std::string_view own, std::string_view other, std::string_view amount) {
        return fmt::format(
            "SELECT IdTransaction, {}, TaxCategory AS [Category], {} AS [Party], "
            "{} AS [Amount] FROM Transactions WHERE ({} = {}) {}",
            kDate, other, amount, own, id, filter);
    };
    return half("CreditId", "DebitDesc", "Amount") + "UNION " +
           half("DebitId", "CreditDesc", "-1 * Amount");
}

std::string SubjectSql(const std::string& where, const std::string& filter) {
    return fmt::format(
        "SELECT IdTransaction, {}, DebitDesc AS [From], CreditDesc AS [To], Amount, "
        "TaxCategory AS [Category], Description FROM Transactions WHERE {} {}",
        kDate, where, filter);
}

std::string UnitFilter(const LedgerView& view) {
    if (view.scope == LedgerScope::Unit) return fmt::format("(IdUnit = {})", view.id);
    return fmt::format("(IdBuilding = {}) AND (IdUnit = 0)", view.idBuilding);
}

} // namespace

std::string LedgerSql(const LedgerView& view, platform::Date today) {
    const std::string filter = DateFilter(view.days, today);
    std::string sql;
    switch (view.dbType) {
        case core::kAccount:
            sql = AccountSql(view.id, filter);
            break;
        case core::kTenant:
            sql = SubjectSql(fmt::format("(IdTenant = {})", view.id), filter);
            break;
        case core::kUnit:
            sql = SubjectSql(UnitFilter(view), filter);
            break;
        default:
            return {};
    }
    return sql + "ORDER BY 2 DESC";
}

std::string_view LedgerStoreName(core::RecordKind dbType) {
    switch (dbType) {
        case core::kAccount:
            return "ucLedger.Account";
        case core::kTenant:
            return "ucLedger.Tenant";
        case core::kUnit:
            return "ucLedger.Unit";
        default:
            return {};
    }
}

} // namespace books
