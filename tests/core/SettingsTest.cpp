#include "core/Settings.h"

#include <gmock/gmock.h>

#include "core/CoreFixture.h"
#include "core/FormPosition.h"
#include "core/PickLists.h"
#include "core/Preferences.h"
#include "core/RegistryKeys.h"
#include "support/Cases.h"

namespace {

using core::Preferences;
using core::WindowState;
using support::Case;
using support::ForEachCase;
using Settings = tests::CoreProcess;
using PreferenceStore = tests::CoreProcess;
using PickLists = tests::CoreProcess;
using FormPosition = tests::CoreProcess;
using testing::ElementsAre;

constexpr const char* kCases = VESTREL_TEST_DATA "/settings.cases";

TEST_F(Settings, ValuesReadByTheirTypeAndDefaultOtherwise) {
    core::SetRegString("Key", "text", std::string_view("cut\0here", 8));
    core::SetRegNumber("Key", "number", -7);
    EXPECT_EQ(core::GetRegString("Key", "text", "none"), "cut");
    EXPECT_EQ(core::GetRegString("Key", "number", "none"), "none");
    EXPECT_EQ(core::GetRegString("Other", "text", "none"), "none");
    EXPECT_EQ(core::GetRegNumber("Key", "number", 3), -7);
    EXPECT_EQ(core::GetRegNumber("Key", "text", 3), 3);
}

TEST_F(Settings, OnlyTheWordTrueIsTrue) {
    ForEachCase(kCases, "flags", [](const Case& each) {
        core::SetRegString("Key", "flag", each["stored"]);
        EXPECT_EQ(core::GetRegFlag("Key", "flag", true), each.IsYes("when the default is true"));
        EXPECT_EQ(core::GetRegFlag("Key", "flag", false), each.IsYes("when it is false"));
    });
    core::SetRegFlag("Key", "flag", false);
    EXPECT_EQ(core::GetRegString("Key", "flag", ""), "False");
}

TEST_F(PreferenceStore, EveryPreferenceComesBackAsItWasSaved) {
    core::LoadPreferences();
    EXPECT_EQ(Preferences().LeaseExpiringDays, 45);
    EXPECT_TRUE(Preferences().ShowSplash);
    EXPECT_FALSE(core::App().Expert);

    Preferences().EnableExpert = true;
    Preferences().AutoSize = 2;
    Preferences().ConfirmDelete = false;
    Preferences().KeepDays = 0;
    Preferences().ViewToolbar = false;
    EXPECT_TRUE(core::SavePreferences());
    Preferences() = {};
    core::LoadPreferences();
    EXPECT_EQ(Preferences().AutoSize, 2);
    EXPECT_FALSE(Preferences().ConfirmDelete);
    EXPECT_EQ(Preferences().KeepDays, 0);
    EXPECT_FALSE(Preferences().ViewToolbar);
    EXPECT_TRUE(Preferences().ViewNavbar);
    EXPECT_TRUE(core::App().Expert);
    EXPECT_EQ(core::GetRegString(core::kPreferencesKey, R"(Reports\ViewToolbar)", ""), "False");
    EXPECT_EQ(core::GetRegNumber(core::kPreferencesKey, "KeepDays", -1), 0);
}

TEST_F(PickLists, RememberEachNewTextOnce) {
    struct Typed {
        std::string_view text;
        std::string_view tag;
        std::string_view stored;
    };
    const Typed cases[] = {
        {"  ", "?Car", ""},
        {"Van", "?", ""},
        {" Vanity ", "?Car", "Vanity"},
        {"van", "?Car", "Vanity"},
        {"Truck", "?Building.Car", "Vanity\x01Truck"},
        {"Y\x01T", "?Car", "Vanity\x01Truck"},
        {"O'Brien", "?Car", "Vanity\x01Truck\x01O'Brien"},
    };
    for (const Typed& c : cases) {
        core::ChoiceList list;
        list.SetText(c.text);
        core::SavePickList(list, c.tag);
        EXPECT_EQ(core::GetRegString(core::kPickListsKey, "Car", ""), c.stored) << c.text;
    }

    core::ChoiceList list;
    core::LoadPickList(list, "");
    core::LoadPickList(list, "?");
    EXPECT_TRUE(list.Rows().empty());
    core::LoadPickList(list, "?Car");
    EXPECT_THAT(list.Rows(), ElementsAre(core::Choice{"Vanity"}, core::Choice{"Truck"},
                                         core::Choice{"O'Brien"}));

    list.Add("Offered", 0);
    list.Select(3);
    core::SavePickList(list, "?Car");
    EXPECT_EQ(core::GetRegString(core::kPickListsKey, "Car", ""), "Vanity\x01Truck\x01O'Brien");
}

TEST_F(FormPosition, ComesBackAsFarAsTheFormTakesIt) {
    const core::FormRectangle place = {-10, 20, 300, 400};
    core::SaveForm("frmA", WindowState::Normal, place);
    EXPECT_EQ(core::GetRegString(core::kFormPositionKey, "frmA", ""), "-10,20,300,400");

    auto found = core::RestoreForm("frmA", core::FormSizing::Resizable);
    EXPECT_EQ(found.place, place);
    EXPECT_TRUE(found.appliesSize);
    found = core::RestoreForm("frmA", core::FormSizing::Fixed);
    EXPECT_EQ(found.place, place);
    EXPECT_FALSE(found.appliesSize);
    EXPECT_EQ(core::RestoreForm("frmB", core::FormSizing::Fixed).place, std::nullopt);

    core::SaveForm("frmA", WindowState::Maximized, {0, 0, 1, 1});
    found = core::RestoreForm("frmA", core::FormSizing::Resizable);
    EXPECT_EQ(found.state, WindowState::Maximized);
    EXPECT_EQ(found.place, std::nullopt);
    EXPECT_EQ(core::GetRegString(core::kFormPositionKey, "frmA", ""), "-10,20,300,400");
}

TEST_F(FormPosition, DamagedTextIsNoPlace) {
    ForEachCase(kCases, "places of a form", [](const Case& each) {
        core::SetRegString(core::kFormPositionKey, "frm", each["text"]);
        const auto found = core::RestoreForm("frm", core::FormSizing::Resizable);
        EXPECT_EQ(found.place.has_value(), each.IsYes("is a place"));
        EXPECT_EQ(found.appliesSize, each.IsYes("has a size"));
    });
}

} // namespace
