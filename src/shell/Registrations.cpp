#include "shell/Registrations.h"

#include "books/ScheduledEvents.h"
#include "books/TransactionListeners.h"
#include "core/DailyRun.h"
#include "core/Startup.h"
#include "exchange/KeepCopy.h"
#include "leases/LeaseRun.h"
#include "leases/Ledger.h"
#include "mortgages/MortgageRun.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Errors.h"
#include "removal/DeleteRecord.h"
#include "store/CreateDatabase.h"

namespace shell {

namespace {

/// Keeps a copy of the books: entering a building's records again is too much work for a user.
bool KeepCopyBeforeRemoval() {
    try {
        exchange::KeepCopy(exchange::CopyReason::Removal);
        return true;
    } catch (const platform::Error& failure) {
        return platform::TheDialogs().AskYesNo(
            "Confirm Removal",
            "No copy of the database could be kept before the building is removed:\n" +
                std::string(failure.what()) + "\n\nDo you wish to continue without one?",
            platform::Icon::Exclamation);
    }
}

} // namespace

void RegisterLogic() {
    core::SetBooksStep(store::AddMissingTables);
    core::RegisterRunStep(core::RunStep::ScheduledEvents, books::RunDueEvents);
    core::RegisterRunStep(core::RunStep::Mortgages, mortgages::UpdateMortgages);
    core::RegisterRunStep(core::RunStep::Leases, leases::UpdateLeases);
    books::RegisterTransactionListener(leases::WriteDepositRow);
    removal::SetBeforeBuilding(KeepCopyBeforeRemoval);
}

} // namespace shell
