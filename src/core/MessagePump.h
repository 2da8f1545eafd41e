#pragma once

#include <functional>

namespace core {

/// Gives the process its way of letting pending window messages run; an empty one takes it away.
void SetMessagePump(std::function<void()> pump);

/// Lets pending window messages run, so that long work doesn't freeze the screen. What they do
/// happens inside this call. Nothing in a program without windows.
void LetMessagesRun();

} // namespace core
