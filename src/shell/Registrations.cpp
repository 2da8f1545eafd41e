#include "shell/Registrations.h"

#include "books/ScheduledEvents.h"
#include "books/TransactionListeners.h"
#include "core/DailyRun.h"
#include "leases/LeaseRun.h"
#include "leases/Ledger.h"
#include "mortgages/MortgageRun.h"

namespace shell {

void RegisterLogic() {
    core::RegisterRunStep(core::RunStep::ScheduledEvents, books::RunDueEvents);
    core::RegisterRunStep(core::RunStep::Mortgages, mortgages::UpdateMortgages);
    core::RegisterRunStep(core::RunStep::Leases, leases::UpdateLeases);
    books::RegisterTransactionListener(leases::WriteDepositRow);
}

} // namespace shell
