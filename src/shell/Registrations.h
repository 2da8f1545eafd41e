#pragma once

namespace shell {

/// Hangs the rooms' logic into the places that call upwards: the steps of the bring-up-to-date run.
/// Both programs call it first, once.
void RegisterLogic();

} // namespace shell
