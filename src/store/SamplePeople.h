#pragma once

#include <cstdint>
#include <string_view>

#include "store/SampleProperty.h"

namespace store {

/// Writes a tenant with the status "Approved" or another one, and for some of them a contact.
std::int32_t AddSampleTenant(SampleBooks& books, int areaCode, std::string_view status);

/// Writes the incidents of a late payer.
void AddSampleIncidents(SampleBooks& books, std::int32_t idTenant);

/// Writes people who applied and hold no lease: waiting, approved, refused.
void AddSampleApplicants(SampleBooks& books);

} // namespace store
