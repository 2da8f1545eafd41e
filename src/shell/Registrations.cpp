#include "shell/Registrations.h"

#include "books/ScheduledEvents.h"
#include "core/DailyRun.h"
#include "leases/LeaseRun.h"

namespace shell {

void RegisterLogic() {
    core::RegisterRunStep(core::RunStep::ScheduledEvents, books::RunDueEvents);
    core::RegisterRunStep(core::RunStep::Leases, leases::UpdateLeases);
}

} // namespace shell
