#pragma once

#include <exception>
#include <string>
#include <vector>

namespace core::forms {

/// The text of the roll: its head line, an empty line, and every line with a line end.
std::string ErrorRollText(const std::vector<std::string>& lines);

/// Tells the person all that is wrong at once; true when there was nothing to tell.
bool ShowErrorRoll(const std::vector<std::string>& lines);

/// The box for a failure that isn't the person's doing.
void ShowFailure(const std::exception& failure);

/// Runs what an event asks for, and shows what it throws; true when it went through. Nothing that
/// an event handler throws may reach the event loop.
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
