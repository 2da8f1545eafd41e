#pragma once

#include <functional>

namespace core {

/// Notices that the day has changed while the program stays open. The first tick only remembers its
/// day, since the start has just brought the books up to date.
class DayChange {
  public:
    /// Called regularly. Calls `work` if the day of the month has changed since the previous tick.
    /// An exception of `work` is passed on, and the next tick tries again.
    void Tick(const std::function<void()>& work);

  private:
    unsigned rememberedDay_ = 0;
};

} // namespace core
