#pragma once

#include <cstdint>

namespace shell {

/// Asks, unless the preference ConfirmMoves is off, then moves a unit with its automated events and
/// transactions to another building. If that building has more than one unit then, it becomes a
/// multi-unit one; the former building doesn't change. Notifies the open forms. Returns false,
/// without any change, if the user said No or either record was deleted in the meantime. Throws on
/// failure, and the books stay unchanged.
bool MoveUnit(std::int32_t idUnit, std::int32_t idBuilding);

} // namespace shell
