#pragma once

#include <cstdint>

namespace shell {

/// Asks, unless the preference ConfirmMoves is off, and moves a unit to another building with its
/// automated events and transactions. The building becomes a multi-unit one if it has more than
/// one unit then; the one left behind stays as it is. Notifies the open forms. False if the user
/// said No, or if either record was deleted in the meantime; nothing is changed then. Throws on
/// failure, the books as before.
bool MoveUnit(std::int32_t idUnit, std::int32_t idBuilding);

} // namespace shell
