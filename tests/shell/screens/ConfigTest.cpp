#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTabWidget>

#include "core/BooksSettings.h"
#include "core/Configuration.h"
#include "core/PickLists.h"
#include "core/binding/ComboList.h"
#include "core/binding/Tags.h"
#include "shell/screens/frmConfig.h"
#include "support/KeepingDesktop.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using shell::screens::frmConfig;

class ConfigTest : public ScreenTest {
  protected:
    ConfigTest() {
        Run("DELETE * FROM Configuration");
        core::CreateDefaultConfiguration(core::App().Connection);
        core::LoadConfiguration();
    }
    QPointer<frmConfig> Open() { return Show<frmConfig>(); }
    static QLineEdit& Box(const frmConfig& form, const char* name) {
        return Find<QLineEdit>(form, name);
    }
};

TEST_F(ConfigTest, ShowsTheSettingsOfTheBooks) {
    const auto form = Open();
    const std::pair<const char*, const char*> shown[] = {
        {"txtCompanyName", "Your Company Name"},
        {"txtTaxIDFed", "123-56-6789"},
        {"txtTerm", "12"},
        {"txtDiscount", "50.00"},
        {"txtDailyFee", "0.00"},
        {"txtCFAVacancyRate", "5"},
        {"txtCFAExp4", "Pool"},
        {"txtDbVersion", "9"},
        {"txtUserName", "Administrator"},
        {"txtSecAccess", "1"},
    };
    for (const auto& [name, text] : shown) {
        EXPECT_EQ(Box(*form, name).text(), QString::fromLatin1(text)) << name;
    }
    EXPECT_EQ(Text(*form, "cboTermType"), "Month(s)");
    EXPECT_EQ(Text(*form, "cboExpireOption"), "MTM");
    EXPECT_FALSE(form->Dirty());
    const auto* const tabs = form->findChild<QTabWidget*>();
    EXPECT_EQ(tabs->tabText(0) + tabs->tabText(1) + tabs->tabText(2) + tabs->tabText(3),
              QStringLiteral("GeneralAnalysisLeasesOther"));
}

TEST_F(ConfigTest, SavingReachesEveryScreenWithTheNewValuesLoaded) {
    Said heard;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t action, std::int32_t id) {
        heard.push_back(std::to_string(core::KindNumber(kind)) + " " + std::to_string(action) +
                        " " + std::to_string(id) + " " + core::Config().CompanyName);
    });
    const auto form = Open();
    Type(Box(*form, "txtCompanyName"), "Elm & Sons");
    Choose(*form, "cboDefaultRentAccount", "River Bank");
    Type(Box(*form, "txtOneTimeFee"), "75.5");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(heard, Said{"24 1 0 Elm & Sons"});
    EXPECT_EQ(core::Config().DefaultRentAccount, 60);
    EXPECT_EQ(core::Config().OneTimeFee, platform::Currency::FromScaled(755'000));
    EXPECT_FALSE(form->Dirty());
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Configuration"), "1");
}

TEST_F(ConfigTest, NothingChangedSavesNothingElse) {
    const std::string before = Ask("SELECT NextId FROM Configuration");
    const std::string weight = Ask("SELECT NoteEquityWeight FROM Configuration");
    ClickAction(*Open(), "CLOSE");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT NextId FROM Configuration"), before);
    EXPECT_EQ(Ask("SELECT NoteEquityWeight FROM Configuration"), weight);
    EXPECT_EQ(core::Config().CFASaleExpense, 4);
}

TEST_F(ConfigTest, SaysSinceWhenTheBooksAreKept) {
    const auto form = Open();
    auto& since = Box(*form, "dpKeptSince");
    EXPECT_EQ(since.text(), QString());
    Type(since, "13/45");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_FALSE(core::BooksKeptSince().IsSet());
    for (const char* const day : {"11/01/2023", ""}) {
        Type(since, day);
        if (!*day) since.clear();
        ClickAction(*form, "APPLY");
        EXPECT_EQ(core::BooksKeptSince().ToText(), day);
        EXPECT_EQ(Ask("SELECT Count(*) FROM BooksSetting"), *day ? "1" : "0");
    }
    // A save of something else keeps the day that another program has set.
    core::SetBooksKeptSince(platform::Date(2022, 1, 1));
    Type(Box(*form, "txtCompanyName"), "Elm");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(core::BooksKeptSince(), platform::Date(2022, 1, 1));
    EXPECT_EQ(since.text(), QStringLiteral("01/01/2022"));
}

TEST_F(ConfigTest, BooksWithoutSettingsGetThemByASave) {
    Run("DELETE * FROM Configuration");
    const auto form = Open();
    Type(Box(*form, "txtCompanyName"), "New");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT CompanyName FROM Configuration"), "New");
}

TEST_F(ConfigTest, ALeaseThatRunsOnHasNoTerm) {
    const auto form = Open();
    const auto offered = [&] {
        return std::array{Box(*form, "txtTerm").isEnabled(),
                          Find<QLabel>(*form, "lblExpireOption").isEnabled(),
                          Find<QComboBox>(*form, "cboExpireOption").isEnabled()};
    };
    for (const auto& [type, ends] : {std::pair{"MTM", false},
                                     {"Year(s)", true},
                                     {"WTW", false},
                                     {"Week(s)", true},
                                     {"Month(s)", true}}) {
        Choose(*form, "cboTermType", type);
        EXPECT_EQ(offered(), (std::array{ends, ends, ends})) << type;
    }
    Run("UPDATE Configuration SET TermType = 'WTW'");
    const auto loaded = Open();
    EXPECT_FALSE(Box(*loaded, "txtTerm").isEnabled()) << "also as it is loaded";
}

TEST_F(ConfigTest, ATypedVehicleIsOfferedTheNextTime) {
    const auto form = Open();
    Type(Find<QComboBox>(*form, "cboDefaultCar"), "Old Truck");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT DefaultCar FROM Configuration"), "Old Truck");
    Run("UPDATE Configuration SET DefaultCar = 'Van'");
    const auto again = Open();
    const auto& cars = Find<QComboBox>(*again, "cboDefaultCar");
    EXPECT_EQ(cars.currentText(), QStringLiteral("Van"));
    EXPECT_GE(cars.findText(QStringLiteral("Old Truck")), 0);
}

TEST_F(ConfigTest, AClickOnAnAddressGoesThereUnlessItIsBeingTyped) {
    const KeepingDesktop desktop;
    const auto form = Open();
    Box(*form, "txtEmail").setText(QStringLiteral("me@elm.example"));
    Box(*form, "txtWeb").setText(QStringLiteral("www.elm.example"));
    support::ClickOn(Box(*form, "txtEmail"));
    support::ClickOn(Box(*form, "txtWeb"));
    support::ClickOn(Box(*form, "txtPhone"));
    Box(*form, "txtWeb").clear();
    support::ClickOn(Box(*form, "txtWeb"));
    Type(Box(*form, "txtWeb"), "www.");
    support::ClickOn(Box(*form, "txtWeb"));
    EXPECT_EQ(desktop.Opened(), (Said{"mail me@elm.example", "www.elm.example"}));
}

TEST_F(ConfigTest, AnAccountThatIsAddedIsOffered) {
    const auto form = Open();
    Choose(*form, "cboDefaultRentAccount", "River Bank");
    ClickAction(*form, "APPLY");
    Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (63, 'Brook Bank')");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    const auto& list = Find<QComboBox>(*form, "cboDefaultRentAccount");
    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(list.currentText(), QStringLiteral("River Bank"));
    EXPECT_FALSE(form->Dirty());
}

} // namespace
} // namespace support
