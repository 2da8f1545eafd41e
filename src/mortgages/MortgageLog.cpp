#include "mortgages/MortgageLog.h"

#include "core/Rows.h"
#include "core/Session.h"

namespace mortgages {

using platform::Value;

namespace {

constexpr std::string_view kInsertEntry =
    "INSERT INTO MortgageLog (IdMortgageLog, IdMortgage, IdTransaction, Period, DatePosted, "
    "Category, Principal, PayDown, Interest, Other, Total, Description, Flags) "
    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";

constexpr std::string_view kUpdateEntry =
    "UPDATE MortgageLog SET IdMortgage = ?, IdTransaction = ?, Period = ?, DatePosted = ?, "
    "Category = ?, Principal = ?, PayDown = ?, Interest = ?, Other = ?, Total = ?, "
    "Description = ?, Flags = ? WHERE IdMortgageLog = ?";

Value Code(LogFlags code) {
    return static_cast<std::int16_t>(code);
}

bool Rewrite(std::int32_t id, const MortgageLogEntry& entry) {
    return core::Execute(kUpdateEntry, {entry.idMortgage, entry.idTransaction, entry.period,
                                        entry.datePosted.ToText(), entry.category, entry.principal,
                                        entry.payDown, entry.interest, entry.other, entry.Total(),
                                        entry.description, Code(entry.flags), id}) > 0;
}

} // namespace

std::int32_t WriteMortgageLog(const MortgageLogEntry& entry, std::int32_t idMortgageLog) {
    if (idMortgageLog != 0 && Rewrite(idMortgageLog, entry)) return idMortgageLog;
    const std::int32_t id = core::NextId();
    core::Execute(kInsertEntry, {id, entry.idMortgage, entry.idTransaction, entry.period,
                                 entry.datePosted.ToText(), entry.category, entry.principal,
                                 entry.payDown, entry.interest, entry.other, entry.Total(),
                                 entry.description, Code(entry.flags)});
    return id;
}

std::int32_t WriteCharges(std::int32_t idMortgage, std::span<const Charge> charges) {
    if (charges.empty()) return 0;
    const std::int32_t first = core::NextIds(static_cast<std::int32_t>(charges.size()));
    std::int32_t id = first;
    for (const Charge& charge : charges) {
        const ChargeWords words = WordsOf(charge.flags);
        core::Execute(kInsertEntry,
                      {id++, idMortgage, std::int32_t{0}, charge.period, charge.date.ToText(),
                       words.category, charge.principal, charge.payDown, charge.interest,
                       charge.other, charge.Total(), words.description, Code(charge.flags)});
    }
    return first;
}

} // namespace mortgages
