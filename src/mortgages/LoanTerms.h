#pragma once

#include <cstdint>
#include <string>

namespace mortgages {

inline constexpr double kHighestRate = 0.3;

/// The terms of a loan as they are stored: rates and shares as fractions, periods in months. The
/// members are named after the fields in the books.
struct LoanTerms {
    std::string Description = "New Mortgage";
    std::int16_t CurrentPeriod = 1;
    double OrigPV = 100'000;
    double OrigPer = 360;
    double OrigRate = 0.05;
    double OrigPmt = 0; ///< computed
    std::string FirstDue;
    bool IntOnly = false;
    bool Balloon = false;
    std::int16_t BalloonPer = 60;
    double BalloonPmt = 0;    ///< computed
    bool PPM = false;         ///< paying much ahead costs a penalty
    std::int16_t PPMPer = 60; ///< periods in which it does so, 0 for all
    double PPMPct = 0.05;     ///< the penalty as a share of OrigPV
    double PPMTrigger = 0.2;  ///< the share of OrigPV, paid in a calendar year, that sets it off
    bool ARM = false;         ///< the rate is adjusted
    std::int16_t ARMLockedPer = 12; ///< periods before the first adjustment
    std::int16_t ARMAdjPer = 12;    ///< periods between adjustments
    double ARMLifeCap = 0.06;       ///< the highest rise over OrigRate
    double ARMPerCap = 0.02;        ///< the highest rise at one adjustment
    double xPriAll = 0;             ///< extra principal of every period without one of its own
};

} // namespace mortgages
