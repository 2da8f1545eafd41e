#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/RecordKinds.h"

namespace search {

/// The arguments of core::EditRecord that open a record that was found.
struct Target {
    core::RecordKind kind = core::kNone;
    std::int32_t id = 0;
    std::int32_t parent1 = 0;
    std::int32_t parent3 = 0;

    friend bool operator==(const Target&, const Target&) = default;
};

/// Returns the target as the index keeps it.
std::string TargetText(const Target& target);
/// Reads a target's text. Returns nothing for a text that isn't a target.
std::optional<Target> ReadTarget(std::string_view text);

} // namespace search
