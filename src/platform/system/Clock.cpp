#include "platform/system/Clock.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <chrono>
#include <ctime>
#include <utility>

#include "platform/system/ThreadClock.h"

namespace platform {

namespace {

std::optional<Date>& SetDay() {
    static std::optional<Date> day;
    return day;
}

std::optional<Date>& DayOfThread() {
    thread_local std::optional<Date> day;
    return day;
}

std::tm LocalTime(std::time_t time) {
    std::tm local{};
    localtime_r(&time, &local);
    return local;
}

Date DayOf(const std::tm& local) {
    return {local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1),
            static_cast<unsigned>(local.tm_mday)};
}

} // namespace

Date Today() {
    if (DayOfThread()) return *DayOfThread();
    if (SetDay()) return *SetDay();
    return DayOf(LocalTime(std::time(nullptr)));
}

double SecondOfDay() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto second = floor<seconds>(now);
    const std::tm local = LocalTime(system_clock::to_time_t(second));
    return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec +
           duration<double>(now - second).count();
}

Moment ChangedAt(const std::filesystem::path& file) {
    struct stat status {};
    if (stat(file.c_str(), &status) != 0) return {};
    const std::tm local = LocalTime(status.st_mtim.tv_sec);
    return {DayOf(local), (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec};
}

void SetChangedAt(const std::filesystem::path& file, const Moment& moment) {
    if (!moment.day.IsSet()) return;
    std::tm local{};
    local.tm_year = moment.day.Year() - 1900;
    local.tm_mon = static_cast<int>(moment.day.Month()) - 1;
    local.tm_mday = static_cast<int>(moment.day.Day());
    local.tm_sec = moment.second;
    local.tm_isdst = -1;
    const timespec time{std::mktime(&local), 0};
    const std::array<timespec, 2> times{time, time};
    static_cast<void>(utimensat(AT_FDCWD, file.c_str(), times.data(), 0));
}

void SetToday(std::optional<Date> day) {
    SetDay() = day;
}

std::optional<Date> SetTodayOfThread(std::optional<Date> day) {
    return std::exchange(DayOfThread(), day);
}

} // namespace platform
