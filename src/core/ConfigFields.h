#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "core/Configuration.h"
#include "platform/values/Value.h"

namespace core {

/// The member of ConfigValues that holds a field of the table Configuration; monostate for a field
/// that is read from the table when it is needed.
using ConfigMember =
    std::variant<std::monostate, std::string ConfigValues::*, std::int16_t ConfigValues::*,
                 std::int32_t ConfigValues::*, platform::Currency ConfigValues::*,
                 double ConfigValues::*, bool ConfigValues::*>;

struct ConfigField {
    std::string_view name;
    /// The value in new books; null for a field that they leave unset.
    platform::Value newValue;
    ConfigMember member;
};

/// Returns all fields of the table Configuration that the program gives a meaning.
std::vector<ConfigField> ConfigFields();

} // namespace core
