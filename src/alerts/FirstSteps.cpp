#include "alerts/FirstSteps.h"

#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/values/Errors.h"

namespace alerts {

namespace {

constexpr FirstStep kBuilding = {
    "These books are empty. Begin with a building and its units; then come the tenants and their "
    "leases.",
    "Add a Building", core::kBuilding};
constexpr FirstStep kTenant = {
    "Next come your tenants. With a unit and a tenant you can write a lease.", "Add a Tenant",
    core::kTenant};
constexpr FirstStep kLease = {
    "Next come your leases: from then on the rent is charged by itself, day by day.", "Add a Lease",
    core::kLease};

} // namespace

const FirstStep* NextFirstStep() {
    try {
        if (core::Exists("SELECT IdLease FROM Lease") ||
            core::Exists("SELECT IdMortgage FROM Mortgage")) {
            return nullptr;
        }
        if (!core::Exists("SELECT IdUnit FROM Unit")) return &kBuilding;
        return core::Exists("SELECT IdTenant FROM Tenant") ? &kLease : &kTenant;
    } catch (const platform::Error&) {
        return nullptr;
    }
}

} // namespace alerts
