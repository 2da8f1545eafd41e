#include "shell/SplashTime.h"

#include <cmath>

namespace shell {

SplashTime::SplashTime(double secondOfDay) : start_(std::round(secondOfDay)) {}

bool SplashTime::IsOver(double secondOfDay) const {
    // A time before the start, by more than its rounding, belongs to the next day.
    return secondOfDay > start_ + 1 || secondOfDay < start_ - 1;
}

} // namespace shell
