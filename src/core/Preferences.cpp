#include "core/Preferences.h"

#include "core/Globals.h"
#include "core/RegistryKeys.h"
#include "core/StoredSettings.h"

namespace core {

namespace {

using P = PreferenceValues;

constexpr StoredMember<P> kPreferences[] = {
    Stored<&P::EnableExpert>("EnableExpert"),
    Stored<&P::AutoSize>("AutoSize"),
    Stored<&P::DisplayDays>("DisplayDays"),
    Stored<&P::ShowSplash>("ShowSplash"),
    Stored<&P::ReportOutput>("ReportOutput"),
    Stored<&P::ConfirmDelete>("ConfirmDelete"),
    Stored<&P::ConfirmCancel>("ConfirmCancel"),
    Stored<&P::ConfirmMoves>("ConfirmMoves"),
    Stored<&P::LateRent>("LateRent"),
    Stored<&P::LateMortgage>("LateMortgage"),
    Stored<&P::LeaseExpiring>("LeaseExpiring"),
    Stored<&P::LeaseExpiringDays>("LeaseExpiringDays"),
    Stored<&P::MtgEscrow>("MtgEscrow"),
    Stored<&P::MtgEscrowDays>("MtgEscrowDays"),
    Stored<&P::InsRenew>("InsRenew"),
    Stored<&P::InsRenewDays>("InsRenewDays"),
    Stored<&P::HOAPmt>("HOAPmt"),
    Stored<&P::HOAPmtDays>("HOAPmtDays"),
    Stored<&P::WOStatus>("WOStatus"),
    Stored<&P::KeepDays>("KeepDays"),
    Stored<&P::ColWrap>(R"(Reports\ColWrap)"),
    Stored<&P::ViewNavbar>(R"(Reports\ViewNavbar)"),
    Stored<&P::ViewToolbar>(R"(Reports\ViewToolbar)"),
    Stored<&P::ViewMileageDays>("ViewMileageDays"),
    Stored<&P::Appearance>("Appearance"),
};

} // namespace

PreferenceValues& Preferences() {
    static PreferenceValues values;
    return values;
}

void LoadPreferences() {
    PreferenceValues values;
    LoadSettings(kPreferencesKey, kPreferences, values);
    Preferences() = values;
    if (Preferences().EnableExpert) App().Expert = true;
}

bool SavePreferences() {
    return SaveSettings(kPreferencesKey, kPreferences, Preferences());
}

} // namespace core
