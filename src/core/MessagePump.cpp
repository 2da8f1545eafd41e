#include "core/MessagePump.h"

#include <utility>

#include "core/Globals.h"
#include "core/ScratchSession.h"

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
    if (InScratchSession() || !Pump() || App().Connection.InUnitOfWork()) return;
    // Copied, because a handler that it runs may replace the pump.
    const auto pump = Pump();
    pump();
}

} // namespace core
