#include "core/MessagePump.h"

#include <utility>

namespace core {

namespace {

std::function<void()>& Pump() {
    static std::function<void()> pump;
    return pump;
}

} // namespace

void SetMessagePump(std::function<void()> pump) {
    Pump() = std::move(pump);
}

void LetMessagesRun() {
    if (Pump()) Pump()();
}

} // namespace core
