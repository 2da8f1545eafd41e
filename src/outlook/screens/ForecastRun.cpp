#include "outlook/screens/ForecastRun.h"

#include "outlook/LookAhead.h"

namespace outlook::screens {

ForecastRun::ForecastRun(QObject* parent) : QObject(parent) {}

ForecastRun::~ForecastRun() {
    EndThread();
}

void ForecastRun::Start(const std::filesystem::path& books, platform::Date until) {
    EndThread();
    isStopped_ = false;
    isRunning_ = true;
    thread_ = std::thread([this, books, until, number = ++number_] {
        const Result result = Work(books, until, isStopped_);
        // Taken over by the window's thread; dropped if this object has been destroyed.
        QMetaObject::invokeMethod(
            this,
            [this, result, number] {
                if (number == number_) Tell(result);
            },
            Qt::QueuedConnection);
    });
}

void ForecastRun::Stop() {
    isStopped_ = true;
}

ForecastRun::Result ForecastRun::Work(const std::filesystem::path& books, platform::Date until,
                                      const std::atomic<bool>& isStopped) {
    Result result;
    try {
        const auto stop = [&isStopped] { return isStopped.load(); };
        result.forecast = std::make_shared<const Forecast>(LookAhead(books, until, stop));
    } catch (...) {
        result.failure = std::current_exception();
    }
    return result;
}

void ForecastRun::EndThread() {
    isStopped_ = true;
    if (thread_.joinable()) thread_.join();
    isRunning_ = false;
}

void ForecastRun::Tell(const Result& result) {
    isRunning_ = false;
    if (result.failure) {
        Q_EMIT Failed(result.failure);
    } else {
        Q_EMIT Done(result.forecast);
    }
}

} // namespace outlook::screens
