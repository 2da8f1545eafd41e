#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "core/Globals.h"
#include "platform/values/Date.h"

namespace core {

/// While this object exists, its thread works on a copy of the books in memory, at another day:
/// App() returns the copy's session to this thread, and to no other; Today() returns `today`;
/// nobody is notified of changes, and no window message runs. So a routine that writes can be tried
/// out: whatever it does, and however it ends, the books stay as they are.
///
/// The session must end on the thread that began it, after any session that was begun inside it.
class ScratchSession {
  public:
    /// Copies `books`, which are only read and may be books that can't be written to. Once `stop`
    /// returns true, every statement on the copy fails; it is called on this thread. Throws Error
    /// if they can't be copied.
    ScratchSession(const std::filesystem::path& books, platform::Date today,
                   std::function<bool()> stop = {});
    ~ScratchSession();
    ScratchSession(const ScratchSession&) = delete;
    ScratchSession& operator=(const ScratchSession&) = delete;

  private:
    std::function<bool()> stop_; ///< outlives the copy
    Globals app_;
    Globals* appBefore_ = nullptr;
    std::optional<platform::Date> todayBefore_;
};

/// Returns whether this thread works on a copy.
bool InScratchSession();

} // namespace core
