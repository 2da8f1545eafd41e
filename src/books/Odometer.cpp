#include "books/Odometer.h"

#include <cmath>

namespace books {

double Tenths(double miles) {
    constexpr double kTenthsOfAMile = 10;
    return std::round(miles * kTenthsOfAMile) / kTenthsOfAMile;
}

Odometer Odometer::At(double begin) {
    Odometer odometer;
    odometer.endFollows_ = true;
    odometer.TypeBegin(begin);
    return odometer;
}

Odometer Odometer::Of(double begin, double end) {
    Odometer odometer;
    odometer.begin_ = Tenths(begin);
    odometer.TypeEnd(end);
    return odometer;
}

void Odometer::TypeBegin(double reading) {
    begin_ = Tenths(reading);
    if (endFollows_) {
        end_ = Tenths(begin_ + distance_);
    } else {
        distance_ = Tenths(end_ - begin_);
    }
}

void Odometer::TypeEnd(double reading) {
    end_ = Tenths(reading);
    distance_ = Tenths(end_ - begin_);
    endFollows_ = false;
}

void Odometer::TypeDistance(double miles) {
    distance_ = Tenths(miles);
    end_ = Tenths(begin_ + distance_);
    endFollows_ = true;
}

std::optional<double> Odometer::Distance() const {
    if (distance_ < 0) return std::nullopt;
    return distance_;
}

} // namespace books
