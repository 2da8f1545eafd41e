#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/values/Date.h"
#include "store/SampleDice.h"
#include "store/SampleWriter.h"

namespace store {

inline constexpr std::string_view kSampleCar = "Pickup truck";

inline constexpr std::int16_t kAccountKind = 1;

/// The accounts that the sample's other records name.
struct SampleAccounts {
    std::int32_t operatingBank = 0;
    std::int32_t depositBank = 0;
    std::int32_t housingAid = 0;
    std::int32_t association = 0;
    std::int32_t security = 0;
    std::int32_t landscaper = 0;
    std::int32_t pestControl = 0;
    std::int32_t applianceStore = 0;
    std::vector<std::int32_t> utilities; ///< electricity, water, gas, sewage, cable, trash
    std::vector<std::int32_t> vendors;   ///< repair firms
    std::vector<std::int32_t> insurers;
    std::vector<std::int32_t> mortgagees;
    std::vector<std::int32_t> owners;
    std::vector<std::int32_t> managers;
};

/// The state that the parts of the sample share while it is written.
struct SampleBooks {
    SampleWriter& rows;
    SampleDice& dice;
    platform::Date today;
    SampleAccounts accounts;
    std::size_t tenants = 0; ///< written so far
};

} // namespace store
