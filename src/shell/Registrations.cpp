#include "shell/Registrations.h"

#include "core/DailyRun.h"
#include "leases/LeaseRun.h"

namespace shell {

void RegisterLogic() {
    core::RegisterRunStep(core::RunStep::Leases, leases::UpdateLeases);
}

} // namespace shell
