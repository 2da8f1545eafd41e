#include "shell/ViewState.h"

#include <vector>

#include "core/CoreFixture.h"
#include "core/RecordKinds.h"
#include "core/Settings.h"

namespace {

using shell::ViewState;

class ViewStates : public tests::CoreProcess {};

TEST_F(ViewStates, StartAsAllWithoutASort) {
    EXPECT_EQ(shell::LoadViewState("frmKestrom.Lease"), (ViewState{"All", "", "ASC", "", "ASC"}));
}

TEST_F(ViewStates, AreKeptForEachViewUnderItsOwnName) {
    const ViewState leases{"MTM", "Rent", "DESC", "Address", "ASC"};
    shell::SaveViewState("frmKestrom.Lease", leases);
    EXPECT_EQ(shell::LoadViewState("frmKestrom.Lease"), leases);
    EXPECT_EQ(shell::LoadViewState("frmKestrom.Tenant"), ViewState());
    const std::string root = R"(SOFTWARE\Vestrel\Kestrom\)";
    EXPECT_EQ(core::GetRegString(root + "ViewInfo", "frmKestrom.Lease", ""), "MTM");
    EXPECT_EQ(core::GetRegString(root + "SortField", "frmKestrom.Lease", ""), "Rent");
    EXPECT_EQ(core::GetRegString(root + "SortOrder", "frmKestrom.Lease", ""), "DESC");
    EXPECT_EQ(core::GetRegString(root + "PrevField", "frmKestrom.Lease", ""), "Address");
    EXPECT_EQ(core::GetRegString(root + "PrevOrder", "frmKestrom.Lease", ""), "ASC");
}

TEST_F(ViewStates, ReadAWordThatIsNoOrderAsAscending) {
    core::SetRegString(R"(SOFTWARE\Vestrel\Kestrom\SortOrder)", "frmKestrom.Unit", "sideways");
    EXPECT_EQ(shell::LoadViewState("frmKestrom.Unit").sortOrder, "ASC");
}

TEST(ViewTags, NameEveryListAndNothingElse) {
    EXPECT_EQ(shell::ViewTag(core::kUnit), "frmKestrom.Building");
    EXPECT_EQ(shell::ViewTag(core::kTransaction), "frmKestrom.Transaction");
    EXPECT_EQ(shell::ViewTag(core::kAlert), "");
    EXPECT_EQ(shell::ViewTag(core::kMileage), "");
}

bool HasEvery(std::string_view) {
    return true;
}

TEST(HeaderClicks, TurnTheSortAndPushTheOneBeforeBack) {
    struct Click {
        const char* caption;
        const char* sort;
    };
    ViewState state;
    for (const Click& click : std::vector<Click>{
             {"Rent", "[Rent] ASC"},
             {"Rent", "[Rent] DESC"},
             {"Address", "[Address] DESC, [Rent] DESC"},
             {"Address", "[Address] ASC, [Rent] DESC"},
             {"Rent", "[Rent] ASC, [Address] ASC"},
             {"Check #", "[Check #] ASC, [Rent] ASC"},
         }) {
        shell::ClickHeader(state, click.caption);
        EXPECT_EQ(shell::SortText(state, HasEvery), click.sort) << click.caption;
    }
}

TEST(SortTexts, LeaveOutColumnsThatAreGone) {
    struct Case {
        const char* gone;
        const char* sort;
    };
    const ViewState state{"All", "Rent", "DESC", "Unit", "ASC"};
    for (const Case& c : std::vector<Case>{
             {"", "[Rent] DESC, [Unit] ASC"}, {"Rent", "[Unit] ASC"}, {"Unit", "[Rent] DESC"}}) {
        EXPECT_EQ(shell::SortText(state, [&](std::string_view name) { return name != c.gone; }),
                  c.sort);
    }
    EXPECT_EQ(shell::SortText(ViewState(), HasEvery), "");
}

} // namespace
