#pragma once

namespace platform::qt {

/// Buttons take every press if this dynamic property is true for them or for what they stand on:
/// the keys of a calculator, buttons that turn pages.
inline constexpr const char* kTakesEveryPress = "takesEveryPress";

/// Lets no second press act that wasn't meant as one, in all windows of the process: a double click
/// presses a button once, and a held key opens, adds, deletes or presses once, and so does the
/// held letter of a button's caption. Calling it again does nothing.
void GuardPresses();

} // namespace platform::qt
