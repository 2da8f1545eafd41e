#pragma once

#include <vector>

#include "alerts/Alerts.h"

namespace alerts {

// Each function handles one cause: it adds its lines to the list, and none if its query fails.
// Throws Error, which names the record, if a due date is not a valid date.
void AddLateRent(std::vector<AlertItem>& items);
void AddLateMortgages(std::vector<AlertItem>& items);
void AddOpenWorkOrders(std::vector<AlertItem>& items);
void AddEscrowReviews(std::vector<AlertItem>& items);
void AddExpiringLeases(std::vector<AlertItem>& items);
void AddInsuranceRenewals(std::vector<AlertItem>& items);
void AddAssociationPayments(std::vector<AlertItem>& items);
void AddStoredMessages(std::vector<AlertItem>& items);

} // namespace alerts
