#pragma once

namespace platform::qt {

/// Buttons take every press if this dynamic property is true for them or for a widget that contains
/// them: the keys of a calculator, buttons that turn pages.
inline constexpr const char* kTakesEveryPress = "takesEveryPress";

/// Ignores second presses that the user didn't mean, in all windows of the process: a double click
/// presses a button once, and a held key opens, adds, deletes or presses once, as does the held
/// letter of a button's caption. Calling it again does nothing.
void GuardPresses();

} // namespace platform::qt
