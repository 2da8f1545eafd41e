#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Codes.h"
#include "leases/LeaseTerms.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// The entries of the lease wizard. The property and the tenant are each an existing or a new one.
struct LeaseWizardEntry {
    bool newProperty = false;
    std::int32_t idUnit = 0;
    std::string address{};
    std::string city{};
    std::string county{};
    std::string state{};
    std::string zip{};

    bool newTenant = false;
    std::int32_t idTenant = 0;
    std::string lastName{};
    std::string firstName{};

    platform::Date startDate{};
    /// The first due date; unset if it is the start.
    platform::Date firstDue{};
    std::int16_t term = 12;
    std::string termType{core::kTermMonths};
    platform::Currency rent{};
    platform::Currency lateFee{};
    std::int16_t lateDays = 0;
};

/// Returns the terms of the lease that these entries make, before its first run.
LeaseTerms EnteredTerms(const LeaseWizardEntry& entry);

enum class LeaseWizardStep { Introduction, Property, Tenant, Terms, Summary };

/// Returns the errors in a step, a line each.
std::vector<std::string> LeaseWizardErrors(LeaseWizardStep step, const LeaseWizardEntry& entry);

/// Adds the lease, first its property and tenant if they are new; charges it up to today and with
/// its deposits, and broadcasts the changes. One unit of work. Returns the lease's id. Throws on
/// failure.
std::int32_t FinishLeaseWizard(const LeaseWizardEntry& entry);

} // namespace leases
