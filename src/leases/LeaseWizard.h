#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// What the lease wizard has asked. A property or a tenant is one that there is, or a new one.
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
    std::int16_t term = 12;
    std::string termType = "Month(s)";
    platform::Currency rent{};
    platform::Currency lateFee{};
    std::int16_t lateDays = 0;
};

enum class LeaseWizardStep { Introduction, Property, Tenant, Terms, Summary };

/// What is wrong with a step, a line each.
std::vector<std::string> LeaseWizardErrors(LeaseWizardStep step, const LeaseWizardEntry& entry);

/// Makes the lease, and before it its property and its tenant where those are new; charges it up to
/// today and with its deposits, and tells the open screens. One unit of work; failures are thrown.
/// Answers the lease's id.
std::int32_t FinishLeaseWizard(const LeaseWizardEntry& entry);

} // namespace leases
