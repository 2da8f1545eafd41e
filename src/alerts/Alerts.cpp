#include "alerts/Alerts.h"

#include "alerts/AlertSources.h"
#include "core/Globals.h"
#include "core/Preferences.h"
#include "core/Session.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/system/Clock.h"

namespace alerts {

using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

/// Messages without a date were listed once and go; the others stay for their days.
void PurgeMessages() {
    core::ExecuteSql("DELETE * FROM Alerts WHERE EntryDate IS NULL");
    const Date last = DateAdd(Interval::Day, -core::Preferences().KeepDays, platform::Today());
    core::ExecuteSql("DELETE * FROM Alerts WHERE DateValue(EntryDate) <= " +
                     platform::dialect::QuoteDate(last));
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
    PurgeMessages();
    return items;
}

} // namespace alerts
