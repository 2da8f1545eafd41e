#pragma once

#include <optional>

namespace books {

/// The readings of a trip while they are typed, in miles with one decimal. The distance is the end
/// less the start. Of the end and the distance the one that was typed last stays, and the other
/// follows.
class Odometer {
  public:
    /// Nothing driven yet: the end follows.
    static Odometer At(double begin);
    /// A trip as it was stored: the distance follows.
    static Odometer Of(double begin, double end);

    void TypeBegin(double reading);
    void TypeEnd(double reading);
    void TypeDistance(double miles);

    double Begin() const { return begin_; }
    double End() const { return end_; }
    /// Empty while the end is before the start.
    std::optional<double> Distance() const;

  private:
    double begin_ = 0;
    double end_ = 0;
    double distance_ = 0;
    bool endFollows_ = false;
};

/// Rounds to a tenth of a mile, as the log shows and keeps readings.
double Tenths(double miles);

} // namespace books
