#include "core/Preferences.h"

#include <array>
#include <string_view>
#include <variant>

#include "core/Globals.h"
#include "core/RegistryKeys.h"
#include "core/Settings.h"

namespace core {

namespace {

using P = PreferenceValues;

struct Preference {
    std::string_view name;
    std::variant<bool P::*, std::int32_t P::*> member;
};

const std::array<Preference, 25> kPreferences = {{
    {"EnableExpert", &P::EnableExpert},
    {"AutoSize", &P::AutoSize},
    {"DisplayDays", &P::DisplayDays},
    {"ShowSplash", &P::ShowSplash},
    {"ReportOutput", &P::ReportOutput},
    {"ConfirmDelete", &P::ConfirmDelete},
    {"ConfirmCancel", &P::ConfirmCancel},
    {"ConfirmMoves", &P::ConfirmMoves},
    {"LateRent", &P::LateRent},
    {"LateMortgage", &P::LateMortgage},
    {"LeaseExpiring", &P::LeaseExpiring},
    {"LeaseExpiringDays", &P::LeaseExpiringDays},
    {"MtgEscrow", &P::MtgEscrow},
    {"MtgEscrowDays", &P::MtgEscrowDays},
    {"InsRenew", &P::InsRenew},
    {"InsRenewDays", &P::InsRenewDays},
    {"HOAPmt", &P::HOAPmt},
    {"HOAPmtDays", &P::HOAPmtDays},
    {"WOStatus", &P::WOStatus},
    {"KeepDays", &P::KeepDays},
    {R"(Reports\ColWrap)", &P::ColWrap},
    {R"(Reports\ViewNavbar)", &P::ViewNavbar},
    {R"(Reports\ViewToolbar)", &P::ViewToolbar},
    {"ViewMileageDays", &P::ViewMileageDays},
    {"Appearance", &P::Appearance},
}};

struct Loader {
    std::string_view name;
    P& values;

    void operator()(bool P::*member) const {
        values.*member = GetRegFlag(kPreferencesKey, name, P().*member);
    }
    void operator()(std::int32_t P::*member) const {
        values.*member = GetRegNumber(kPreferencesKey, name, P().*member);
    }
};

struct Saver {
    std::string_view name;
    const P& values;

    bool operator()(bool P::*member) const {
        return SetRegFlag(kPreferencesKey, name, values.*member);
    }
    bool operator()(std::int32_t P::*member) const {
        return SetRegNumber(kPreferencesKey, name, values.*member);
    }
};

} // namespace

PreferenceValues& Preferences() {
    static PreferenceValues values;
    return values;
}

void LoadPreferences() {
    for (const Preference& preference : kPreferences) {
        std::visit(Loader{preference.name, Preferences()}, preference.member);
    }
    if (Preferences().EnableExpert) App().Expert = true;
}

bool SavePreferences() {
    bool allWritten = true;
    for (const Preference& preference : kPreferences) {
        if (!std::visit(Saver{preference.name, Preferences()}, preference.member)) {
            allWritten = false;
        }
    }
    return allWritten;
}

} // namespace core
