#pragma once

#include <functional>

namespace core {

/// Sets the function that lets pending window messages run; an empty one removes it.
void SetMessagePump(std::function<void()> pump);

/// Lets pending window messages run, so that long work doesn't freeze the screen. Their handlers
/// run inside this call. Does nothing in a program without windows, nor while a unit of work is
/// open: a click or a timer must not write into that unit.
void LetMessagesRun();

} // namespace core
