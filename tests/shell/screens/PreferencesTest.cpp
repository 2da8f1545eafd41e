#include "core/Preferences.h"
#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "platform/registry/Registry.h"
#include "shell/screens/frmPreferences.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::Preferences;
using shell::screens::frmPreferences;

class PreferencesTest : public ScreenTest {
  protected:
    QPointer<frmPreferences> Open() { return Show<frmPreferences>(); }
    static QCheckBox& Flag(const frmPreferences& form, const char* name) {
        return Find<QCheckBox>(form, name);
    }
    static QLineEdit& Days(const frmPreferences& form, const char* name) {
        return Find<QLineEdit>(form, name);
    }
};

struct FlagControl {
    const char* control;
    bool core::PreferenceValues::*value;
};
constexpr FlagControl kFlags[] = {
    {"chkEnableExpert", &core::PreferenceValues::EnableExpert},
    {"chkShowSplash", &core::PreferenceValues::ShowSplash},
    {"chkConfirmDelete", &core::PreferenceValues::ConfirmDelete},
    {"chkConfirmCancel", &core::PreferenceValues::ConfirmCancel},
    {"chkConfirmMoves", &core::PreferenceValues::ConfirmMoves},
    {"chkLateRent", &core::PreferenceValues::LateRent},
    {"chkLateMortgage", &core::PreferenceValues::LateMortgage},
    {"chkLeaseExpiring", &core::PreferenceValues::LeaseExpiring},
    {"chkMtgEscrow", &core::PreferenceValues::MtgEscrow},
    {"chkInsRenew", &core::PreferenceValues::InsRenew},
    {"chkHOAPmt", &core::PreferenceValues::HOAPmt},
    {"chkWOStatus", &core::PreferenceValues::WOStatus},
    {"chkColWrap", &core::PreferenceValues::ColWrap},
};
struct DaysControl {
    const char* control;
    std::int32_t core::PreferenceValues::*value;
};
constexpr DaysControl kDays[] = {
    {"txtLeaseExpiringDays", &core::PreferenceValues::LeaseExpiringDays},
    {"txtMtgEscrowDays", &core::PreferenceValues::MtgEscrowDays},
    {"txtInsRenewDays", &core::PreferenceValues::InsRenewDays},
    {"txtHOAPmtDays", &core::PreferenceValues::HOAPmtDays},
    {"txtKeepDays", &core::PreferenceValues::KeepDays},
};

TEST_F(PreferencesTest, EachControlStandsForItsOwnPreference) {
    for (const FlagControl& one : kFlags) {
        const auto form = Open();
        const core::PreferenceValues before = Preferences();
        EXPECT_EQ(Flag(*form, one.control).isChecked(), before.*one.value) << one.control;
        Flag(*form, one.control).click();
        ClickAction(*form, "CLOSE");
        for (const FlagControl& other : kFlags) {
            EXPECT_EQ(Preferences().*other.value == before.*other.value,
                      other.control != one.control)
                << one.control << " changed " << other.control;
        }
    }
    int number = 1;
    for (const DaysControl& one : kDays) {
        const auto form = Open();
        EXPECT_EQ(Days(*form, one.control).text(), QString::number(Preferences().*one.value));
        Type(Days(*form, one.control), std::to_string(++number));
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Preferences().*one.value, number) << one.control;
    }
}

TEST_F(PreferencesTest, CloseWritesThemAndCancelDropsThem) {
    auto form = Open();
    Find<QComboBox>(*form, "cboAutosize").setCurrentIndex(2);
    Flag(*form, "chkLateRent").click();
    ClickAction(*form, "CANCEL");
    EXPECT_EQ(Heard(), Said{}) << "nothing is asked";
    EXPECT_EQ(Preferences().AutoSize, 1);
    EXPECT_TRUE(Preferences().LateRent);

    form = Open();
    EXPECT_EQ(Text(*form, "cboAutosize"), "Fit Grid");
    Find<QComboBox>(*form, "cboAutosize").setCurrentIndex(2);
    Flag(*form, "chkLateRent").click();
    ClickAction(*form, "CLOSE");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(core::GetRegNumber(core::kPreferencesKey, "AutoSize", -1), 2);
    EXPECT_EQ(core::GetRegString(core::kPreferencesKey, "LateRent", ""), "False");
}

TEST_F(PreferencesTest, TheColoursChangeWhenItCloses) {
    auto form = Open();
    EXPECT_EQ(Text(*form, "cboAppearance"), "System");
    support::Choose(*form, "cboAppearance", "Dark");
    ClickAction(*form, "CLOSE");
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
    EXPECT_EQ(core::GetRegNumber(core::kPreferencesKey, "Appearance", -1), 2);
    form = Open();
    support::Choose(*form, "cboAppearance", "Light");
    ClickAction(*form, "CLOSE");
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 128);
}

TEST_F(PreferencesTest, AnEmptyBoxIsNoDaysAndOnlyDigitsGoIn) {
    const auto form = Open();
    Days(*form, "txtKeepDays").clear();
    Type(Days(*form, "txtInsRenewDays"), "1.2a345678");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Preferences().KeepDays, 0);
    EXPECT_EQ(Preferences().InsRenewDays, 1234);
}

TEST_F(PreferencesTest, TheExpertStartsWithTheNextStart) {
    core::App().Expert = false;
    const auto form = Open();
    EXPECT_FALSE(Find<QPushButton>(*form, "cmdApply").isVisible());
    Flag(*form, "chkEnableExpert").click();
    ClickAction(*form, "CLOSE");
    EXPECT_FALSE(core::App().Expert);
}

/// A registry that nobody may write to.
class LockedRegistry : public platform::Registry {
  public:
    std::optional<std::string> ReadText(std::string_view, std::string_view) override { return {}; }
    std::optional<std::int32_t> ReadNumber(std::string_view, std::string_view) override {
        return {};
    }
    bool WriteText(std::string_view, std::string_view, std::string_view) override { return false; }
    bool WriteNumber(std::string_view, std::string_view, std::int32_t) override { return false; }
    bool WriteTexts(std::span<const platform::RegistryText>) override { return false; }
};

TEST_F(PreferencesTest, SaysWhenTheyCannotBeWritten) {
    platform::SetRegistry(std::make_unique<LockedRegistry>());
    const auto form = Open();
    Flag(*form, "chkLateRent").click();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Preferences: The preferences could not be saved. They apply until "
                            "the program ends."});
    EXPECT_FALSE(Preferences().LateRent);
}

} // namespace
} // namespace support
