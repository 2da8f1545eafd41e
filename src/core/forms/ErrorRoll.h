#pragma once

#include <exception>
#include <string>
#include <vector>

namespace core::forms {

/// Returns the text of the error list: its heading, an empty line, and every error on its own line.
std::string ErrorRollText(const std::vector<std::string>& lines);

/// Shows the user all errors in one message; returns true if there are none.
bool ShowErrorRoll(const std::vector<std::string>& lines);

/// Shows the message box for a failure that the user didn't cause.
void ShowFailure(const std::exception& failure);

/// Runs the work of an event and shows any error; returns true if there was none. No exception of
/// an event handler may reach the event loop.
template <class Work>
bool Guarded(Work&& work) {
    try {
        work();
        return true;
    } catch (const std::exception& failure) {
        ShowFailure(failure);
        return false;
    }
}

} // namespace core::forms
