#pragma once

namespace shell {

/// The shortest time that the splash is shown: until the clock's second exceeds the rounded second
/// of its start by more than one, which takes between half a second and one and a half.
class SplashTime {
  public:
    /// `secondOfDay` is the clock's time of day in seconds.
    explicit SplashTime(double secondOfDay);

    /// Returns whether the time is over, also after midnight, when the clock starts again from 0.
    bool IsOver(double secondOfDay) const;

  private:
    double start_;
};

} // namespace shell
