#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace core {

// Questions that many rooms ask of the open database. They keep their failures to themselves: an
// identifier that isn't found is 0, a text empty.

std::int32_t GetMortgageBuilding(std::int32_t idMortgage);
std::int32_t GetLeaseUnit(std::int32_t idLease);
std::int32_t GetUnitBuilding(std::int32_t idUnit);

/// Fills both from the lease; false without such a lease, and they stay as they were.
bool GetLeaseParties(std::int32_t idLease, std::int32_t& idUnit, std::int32_t& idTenant);

/// The vehicle that a new trip proposes.
std::string GetDefaultCar();

// Write the status and notify all listeners.
void SetUnitStatus(std::int32_t idUnit, std::string_view status);
void SetTenantStatus(std::int32_t idTenant, std::string_view status);

} // namespace core
