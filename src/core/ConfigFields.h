#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "core/Configuration.h"
#include "platform/values/Value.h"

namespace core {

/// Where a field of the table Configuration is kept in memory; monostate for one that is read from
/// the table where it is needed.
using ConfigMember =
    std::variant<std::monostate, std::string ConfigValues::*, std::int16_t ConfigValues::*,
                 std::int32_t ConfigValues::*, platform::Currency ConfigValues::*,
                 double ConfigValues::*, bool ConfigValues::*>;

struct ConfigField {
    std::string_view name;
    /// What new books get; null for a field that they leave unset.
    platform::Value newValue;
    ConfigMember member;
};

/// All fields of the table Configuration that the program gives a meaning.
std::vector<ConfigField> ConfigFields();

} // namespace core
