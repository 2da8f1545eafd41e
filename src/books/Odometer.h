#pragma once

#include <optional>
#include <string_view>

namespace books {

inline constexpr std::string_view kEndsBelowStart =
    "The ending odometer reading must not be below the starting one.";

/// The readings of a trip while they are typed, in miles with one decimal. The distance is the end
/// less the start. Whichever of end and distance was typed last stays, and the other is calculated.
class Odometer {
  public:
    /// Returns the readings of a new trip, with nothing driven yet; the end is calculated.
    static Odometer At(double begin);
    /// Returns the readings of a stored trip; the distance is calculated.
    static Odometer Of(double begin, double end);

    void TypeBegin(double reading);
    void TypeEnd(double reading);
    void TypeDistance(double miles);

    double Begin() const { return begin_; }
    double End() const { return end_; }
    /// Returns the end less the start; nothing if the end is before the start.
    std::optional<double> Distance() const;

  private:
    double begin_ = 0;
    double end_ = 0;
    double distance_ = 0;
    bool endFollows_ = false;
};

/// Rounds to a tenth of a mile, as the log shows and stores readings.
double Tenths(double miles);

} // namespace books
