#pragma once

namespace shell {

/// Registers the logic that lower rooms call: the steps of the daily run. Both programs call it
/// once, before anything else.
void RegisterLogic();

} // namespace shell
