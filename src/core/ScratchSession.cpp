#include "core/ScratchSession.h"

#include <utility>

#include "core/ThreadApp.h"
#include "platform/database/MemoryCopy.h"
#include "platform/system/ThreadClock.h"

namespace core {

namespace {

int& SessionsOfThread() {
    thread_local int count = 0;
    return count;
}

} // namespace

// The copy has no file and no folder: a routine that looks for the books by name finds none.
ScratchSession::ScratchSession(const std::filesystem::path& books, platform::Date today,
                               std::function<bool()> stop)
    : stop_(std::move(stop)) {
    platform::OpenCopyInMemory(app_.Connection, books, stop_);
    todayBefore_ = platform::SetTodayOfThread(today);
    appBefore_ = SetAppOfThread(&app_);
    ++SessionsOfThread();
}

ScratchSession::~ScratchSession() {
    --SessionsOfThread();
    SetAppOfThread(appBefore_);
    platform::SetTodayOfThread(todayBefore_);
}

bool InScratchSession() {
    return SessionsOfThread() > 0;
}

} // namespace core
