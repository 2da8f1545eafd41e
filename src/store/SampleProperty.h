#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/values/Currency.h"
#include "store/SampleBooks.h"

namespace store {

struct SampleAppliance {
    std::int32_t id = 0;
    std::string type;
};

struct SampleUnit {
    std::int32_t id = 0;
    std::int32_t idBuilding = 0;
    std::int32_t idOwner = 0; ///< the primary owner's account
    platform::Currency rent;  ///< for a month
    int areaCode = 0;
    std::int32_t kitchen = 0; ///< rooms
    std::int32_t bath = 0;
    std::vector<SampleAppliance> appliances;
};

struct SampleBuilding {
    std::int32_t id = 0;
    std::int32_t idOwner = 0; ///< the primary owner's account
    platform::Currency marketValue;
    double distance = 0; ///< miles, one way
    std::string address;
    std::vector<SampleUnit> units;
};

/// Writes buildings of one and of several units until there are `units` of these, each with its
/// owners, manager, rooms, appliances and contents.
std::vector<SampleBuilding> WriteSampleProperty(SampleBooks& books, int units);

/// Writes the furnishing of one unit, which knows its own identifier already.
void FurnishSampleUnit(SampleBooks& books, SampleUnit& unit, int bedrooms);

} // namespace store
