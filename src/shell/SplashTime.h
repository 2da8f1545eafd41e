#pragma once

namespace shell {

/// How long the splash stays at least: until the clock's second has gone by more than one beyond
/// the rounded second of its start, which is between half a second and one and a half.
class SplashTime {
  public:
    /// `secondOfDay` as the clock tells it.
    explicit SplashTime(double secondOfDay);

    /// Also after midnight, when the clock starts again from 0.
    bool IsOver(double secondOfDay) const;

  private:
    double start_;
};

} // namespace shell
