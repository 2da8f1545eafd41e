#include "alerts/Alerts.h"

#include <optional>
#include <string>

#include "alerts/AlertSources.h"
#include "core/Preferences.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace alerts {

using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

/// Deletes the messages that have been kept for their days, and those without a valid date, which
/// are listed once. Each date is read here: one invalid date must not fail the deletion of all.
void PurgeMessages() {
    core::Execute("DELETE * FROM Alerts WHERE EntryDate IS NULL");
    const Date last = DateAdd(Interval::Day, -core::Preferences().KeepDays, platform::Today());
    platform::Recordset dates = core::Read("SELECT DISTINCT EntryDate FROM Alerts");
    for (; !dates.Eof(); dates.MoveNext()) {
        const std::string text = dates[std::size_t{0}].AsText();
        const std::optional<Date> date = Date::TryParse(text);
        if (date && *date > last) continue;
        core::Execute("DELETE * FROM Alerts WHERE EntryDate = ?", {text});
    }
}

/// The list is complete without the purge; the next refresh tries it again.
void TryToPurgeMessages() {
    try {
        PurgeMessages();
    } catch (const platform::Error&) {
        return;
    }
}

} // namespace

std::vector<AlertItem> GetAlerts() {
    const core::PreferenceValues& wanted = core::Preferences();
    std::vector<AlertItem> items;
    if (wanted.LateRent) AddLateRent(items);
    if (wanted.LateMortgage) AddLateMortgages(items);
    if (wanted.WOStatus) AddOpenWorkOrders(items);
    if (wanted.MtgEscrow) AddEscrowReviews(items);
    if (wanted.LeaseExpiring) AddExpiringLeases(items);
    if (wanted.InsRenew) AddInsuranceRenewals(items);
    if (wanted.HOAPmt) AddAssociationPayments(items);
    AddStoredMessages(items);
    TryToPurgeMessages();
    return items;
}

} // namespace alerts
