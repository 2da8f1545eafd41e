#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace core {

// Lookups in the open database that many rooms need. None of them throws: an identifier that isn't
// found is 0, and a text is empty.

std::int32_t GetMortgageBuilding(std::int32_t idMortgage);
std::int32_t GetLeaseUnit(std::int32_t idLease);
std::int32_t GetUnitBuilding(std::int32_t idUnit);

/// Sets both from the lease; returns false, and leaves them unchanged, if there is no such lease.
bool GetLeaseParties(std::int32_t idLease, std::int32_t& idUnit, std::int32_t& idTenant);

/// Returns the vehicle that is proposed for a new trip.
std::string GetDefaultCar();

// Write the status and notify all listeners.
void SetUnitStatus(std::int32_t idUnit, std::string_view status);
void SetTenantStatus(std::int32_t idTenant, std::string_view status);

} // namespace core
