#pragma once

#include <functional>

#include <sys/types.h>

namespace platform {

/// A process beside the test: it does `work`, says so and lives on until it is killed, without any
/// chance to clean up.
class OtherProcess {
  public:
    /// Returns when the work is done.
    explicit OtherProcess(const std::function<void()>& work);
    ~OtherProcess() { Kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// Whether the work came to its end without an error.
    bool DidWork() const { return didWork_; }
    void Kill();

  private:
    pid_t process_ = 0;
    bool didWork_ = false;
};

} // namespace platform
