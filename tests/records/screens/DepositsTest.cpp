#include <QTabBar>

#include "core/Preferences.h"
#include "core/forms/OpenForms.h"
#include "records/screens/Deposits.h"
#include "records/screens/frmDeposit.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::DepositScope;
using records::screens::Deposits;
using records::screens::frmDeposit;

const std::string kHead = "Description|Type|Amount\n";

class DepositsTest : public ScreenTest {
  protected:
    static QPointer<frmDeposit> Open(std::int32_t id, DepositScope scope = DepositScope::Global) {
        QPointer<frmDeposit> form(new frmDeposit);
        form->Setup(id, scope, {10, 20});
        return form;
    }
    static void Add(int id, std::string_view description, int building, int unit) {
        core::App().Connection.Execute(
            "INSERT INTO Deposit (IdDeposit, Description, Amount, IdBuilding, IdUnit, IsGlobal) "
            "VALUES (?, ?, 100, ?, ?, ?)",
            {id, description, building, unit, building == 0 && unit == 0});
    }
    static std::string Row(int id) {
        const std::string where = " FROM Deposit WHERE IdDeposit = " + std::to_string(id);
        return Ask("SELECT Description" + where) + "|" + Ask("SELECT Amount" + where) + "|" +
               Ask("SELECT IsGlobal" + where) + "|" + Ask("SELECT IdBuilding" + where) + "|" +
               Ask("SELECT IdUnit" + where);
    }
    /// The template screen that stands open.
    static frmDeposit* OpenForm() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const form = qobject_cast<frmDeposit*>(window);
            if (form && form->isVisible()) return form;
        }
        return nullptr;
    }
};

TEST_F(DepositsTest, ATemplateIsForAllForABuildingOrForAUnit) {
    struct Case {
        const char* option;
        std::string_view row;
    };
    int id = 1000;
    for (const Case& one : {Case{"optGlobal", "New Deposit|75.5|True|0|0"},
                            {"optBuilding", "New Deposit|75.5|False|11|0"},
                            {"optUnit", "New Deposit|75.5|False|0|21"}}) {
        auto form = Open(0, DepositScope::Unit);
        EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Deposit"));
        EXPECT_EQ(Text(*form, "txtAmount"), "0.00");
        Find<QRadioButton>(*form, "optBuilding").click();
        support::Choose(*form, "cboBuilding", "Oak Rd");
        Find<QRadioButton>(*form, "optUnit").click();
        support::Choose(*form, "cboUnit", "12 Elm St A");
        Find<QRadioButton>(*form, one.option).click();
        if (one.option == std::string("optBuilding")) {
            support::Choose(*form, "cboBuilding", "Oak Rd");
        }
        Type(Find<QLineEdit>(*form, "txtAmount"), "75.5");
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Heard(), Said{});
        EXPECT_EQ(Row(id), one.row);
        form = Open(id++);
        EXPECT_EQ(form->windowTitle(), QStringLiteral("Deposit: New Deposit"));
        EXPECT_TRUE(Find<QRadioButton>(*form, one.option).isChecked());
        EXPECT_FALSE(form->Dirty());
        form->CloseUnasked();
    }
}

TEST_F(DepositsTest, AScopeWantsItsRecord) {
    const auto form = Open(0, DepositScope::Building);
    support::Choose(*form, "cboBuilding", "[ No Building Selected ]");
    Find<QLineEdit>(*form, "txtDescription").clear();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "A description must be entered.\n"
                                    "A building must be selected.\n"});
    Find<QRadioButton>(*form, "optUnit").click();
    Type(Find<QLineEdit>(*form, "txtDescription"), "Keys");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "A unit must be selected.\n"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Deposit"), "0");
}

TEST_F(DepositsTest, TheListShowsWhatALeaseOfTheUnitIsCharged) {
    Add(500, "Keys", 0, 0);
    Add(501, "Garden", 10, 0);
    Add(502, "Pet's \"room\"", 0, 20);
    Add(503, "Elsewhere", 11, 0);
    Add(504, "Next door", 0, 21);
    Deposits list;
    list.show();
    EXPECT_FALSE(Find<QToolButton>(list, "cmdAdd").isEnabled()) << "nothing is saved yet";
    list.Load({10, 20});
    const std::string garden = "Garden|Building|100.00\n";
    const std::string keys = "Keys|Global|100.00\n";
    const std::string pet = "Pet's \"room\"|Unit|100.00\n";
    const std::vector<std::string> tabs = {kHead + garden + keys + pet, kHead + keys,
                                           kHead + garden, kHead + pet};
    for (int tab = 0; tab < 4; ++tab) {
        Find<QTabBar>(list, "tabs").setCurrentIndex(tab);
        EXPECT_EQ(GridText(list.List()), tabs[static_cast<std::size_t>(tab)]);
    }
    list.Load({10, 0});
    EXPECT_EQ(list.List().Model().rowCount(), 0) << "a building without a unit has none of a unit";
}

TEST_F(DepositsTest, TheListAddsOpensAndDeletes) {
    Deposits list;
    list.Load({10, 20});
    list.show();
    Find<QTabBar>(list, "tabs").setCurrentIndex(2);
    ClickOn(Find<QToolButton>(list, "cmdAdd"));
    frmDeposit* form = OpenForm();
    ASSERT_TRUE(form);
    EXPECT_EQ(Text(*form, "cboBuilding"), "12 Elm St");
    ClickAction(*form, "CLOSE");
    SettleEvents();
    EXPECT_EQ(GridText(list.List()), kHead + "New Deposit|Building|0.00\n");

    QTest::keyClick(&list.List(), Qt::Key_Return);
    form = OpenForm();
    ASSERT_TRUE(form);
    EXPECT_EQ(form->Id(), 1000);
    ClickOn(Find<QToolButton>(list, "cmdEdit"));
    EXPECT_EQ(OpenForm(), form) << "it is open already";
    core::forms::CloseAllForms();

    Answer({false, true});
    ClickOn(Find<QToolButton>(list, "cmdDelete"));
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected Deposit?\n\nNew Deposit"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Deposit"), "1");
    QTest::keyClick(&list.List(), Qt::Key_Delete);
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected Deposit?\n\nNew Deposit"});
    EXPECT_EQ(GridText(list.List()), kHead);

    Add(600, "Keys", 10, 0);
    list.Load({10, 20});
    core::Preferences().ConfirmDelete = false;
    ClickOn(Find<QToolButton>(list, "cmdDelete"));
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Deposit"), "0");
}

} // namespace
} // namespace support
