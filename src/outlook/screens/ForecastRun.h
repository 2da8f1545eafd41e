#pragma once

#include <QObject>
#include <atomic>
#include <exception>
#include <filesystem>
#include <memory>
#include <thread>

#include "outlook/Forecast.h"

namespace outlook::screens {

/// Looks ahead on a thread of its own, so that the window stays responsive.
class ForecastRun : public QObject {
    Q_OBJECT

  public:
    explicit ForecastRun(QObject* parent = nullptr);
    /// Stops a run that is under way, and waits for its end.
    ~ForecastRun() override;

    /// Begins a run. One that is under way is stopped first, and reports nothing.
    void Start(const std::filesystem::path& books, platform::Date until);
    /// Makes the run end soon. It then reports Failed.
    void Stop();
    bool IsRunning() const { return isRunning_; }

  Q_SIGNALS:
    void Done(const std::shared_ptr<const outlook::Forecast>& forecast);
    /// `failure` is a Stopped if Stop was called.
    void Failed(const std::exception_ptr& failure);

  private:
    struct Result {
        std::shared_ptr<const Forecast> forecast;
        std::exception_ptr failure;
    };

    static Result Work(const std::filesystem::path& books, platform::Date until,
                       const std::atomic<bool>& isStopped);
    void EndThread();
    void Tell(const Result& result);

    std::thread thread_;
    std::atomic<bool> isStopped_ = false;
    bool isRunning_ = false;
    int number_ = 0; ///< of the run that was started last
};

} // namespace outlook::screens
