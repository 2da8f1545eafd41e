#pragma once

#include <cstdint>

namespace core {

/// The user's preferences on this machine. Each is stored under its name in the registry, and has a
/// default.
struct PreferenceValues {
    bool EnableExpert = false;
    /// Column sizing of grids: 0 by hand, 1 to the grid, 2 to the text.
    std::int32_t AutoSize = 1;
    std::int32_t DisplayDays = 180;
    bool ShowSplash = true;
    std::int32_t ReportOutput = 0;
    bool ConfirmDelete = true;
    bool ConfirmCancel = true;
    bool ConfirmMoves = true;

    // What the home page shows, and how many days in advance.
    bool LateRent = true;
    bool LateMortgage = true;
    bool LeaseExpiring = true;
    std::int32_t LeaseExpiringDays = 45;
    bool MtgEscrow = true;
    std::int32_t MtgEscrowDays = 30;
    bool InsRenew = true;
    std::int32_t InsRenewDays = 30;
    bool HOAPmt = true;
    std::int32_t HOAPmtDays = 15;
    bool WOStatus = true;
    /// Days that messages stay.
    std::int32_t KeepDays = 7;

    // The report viewer; their names in the registry begin with "Reports\".
    bool ColWrap = true;
    bool ViewNavbar = true;
    bool ViewToolbar = true;

    /// The days that the mileage log shows, 0 for all.
    std::int32_t ViewMileageDays = 90;

    /// The colours: 0 the system's, 1 light, 2 dark.
    std::int32_t Appearance = 0;
};

/// Returns the preferences as last loaded or changed.
PreferenceValues& Preferences();

/// Reads all preferences; those that are missing get their defaults. EnableExpert turns the expert
/// mode on; without it the command line decides.
void LoadPreferences();

/// Writes all preferences; returns false if one couldn't be written.
bool SavePreferences();

} // namespace core
