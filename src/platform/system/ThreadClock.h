#pragma once

#include <optional>

#include "platform/values/Date.h"

namespace platform {

/// Sets the day that Today returns to this thread from now on, whatever SetToday says; an empty one
/// ends that. Returns the previous setting.
std::optional<Date> SetTodayOfThread(std::optional<Date> day);

} // namespace platform
