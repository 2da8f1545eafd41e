#include "platform/system/Clock.h"

#include <chrono>
#include <ctime>

namespace platform {

namespace {

std::optional<Date>& SetDay() {
    static std::optional<Date> day;
    return day;
}

std::tm LocalTime(std::time_t time) {
    std::tm local{};
    localtime_r(&time, &local);
    return local;
}

} // namespace

Date Today() {
    if (SetDay()) return *SetDay();
    const std::tm now = LocalTime(std::time(nullptr));
    return {now.tm_year + 1900, static_cast<unsigned>(now.tm_mon + 1),
            static_cast<unsigned>(now.tm_mday)};
}

double SecondOfDay() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto second = floor<seconds>(now);
    const std::tm local = LocalTime(system_clock::to_time_t(second));
    return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec +
           duration<double>(now - second).count();
}

void SetToday(std::optional<Date> day) {
    SetDay() = day;
}

} // namespace platform
