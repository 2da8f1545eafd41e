#include "core/DayChange.h"

#include "platform/system/Clock.h"

namespace core {

void DayChange::Tick(const std::function<void()>& work) {
    const unsigned day = platform::Today().Day();
    if (rememberedDay_ != 0 && rememberedDay_ != day) work();
    rememberedDay_ = day;
}

} // namespace core
