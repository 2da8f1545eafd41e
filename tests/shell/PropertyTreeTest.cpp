#include "shell/PropertyTree.h"

#include <gtest/gtest.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/Preferences.h"
#include "core/RecordsFixture.h"
#include "shell/MoveUnit.h"
#include "support/ScriptedDialogs.h"

namespace {

using shell::PropertyTree;
using shell::TreeChange;

std::string Steps(const std::vector<TreeChange>& changes) {
    constexpr std::string_view kSigns = "+=>-";
    std::string text;
    for (const TreeChange& change : changes) {
        text += kSigns[static_cast<std::size_t>(change.action)] + KeyOf(change.node);
        if (change.action == TreeChange::Action::Add || change.action == TreeChange::Action::Move)
            text += "@" + KeyOf(change.parent);
        if (!change.text.empty()) text += "(" + change.text + ")";
        text += " ";
    }
    return text;
}

class PropertyTreeTest : public tests::CoreRecords {
  protected:
    ~PropertyTreeTest() override { core::Preferences() = {}; }

    PropertyTree tree_;
};

TEST_F(PropertyTreeTest, ShowsBuildingsWithTheirUnitsAndUnitsWithoutOne) {
    Run("INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (23, 999, '')");
    EXPECT_EQ(
        "+b+10@root(12 Elm St) +b+11@root(Oak Rd) +u+23@unclaimed(Unlabeled Unit) "
        "+u+22@b+11(Unit 1) +u+21@b+10(Unit A) +u+20@b+10(Unit B) ",
        Steps(tree_.Refresh()));
    EXPECT_EQ("", Steps(tree_.Refresh())) << "nothing has changed";
}

TEST_F(PropertyTreeTest, MergesWhatChangedIntoWhatIsShown) {
    tree_.Refresh();
    Run("UPDATE Unit SET Unit = 'Z', IdBuilding = 11 WHERE IdUnit = 20");
    Run("INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (24, 11, '2')");
    Run("UPDATE Building SET Address = '14 Elm St' WHERE IdBuilding = 10");
    Run("DELETE FROM Unit WHERE IdUnit = 21");
    EXPECT_EQ("=b+10(14 Elm St) +u+24@b+11(Unit 2) =u+20(Unit Z) -u+21 ", Steps(tree_.Refresh()))
        << "a unit in another building isn't moved";
    Run("DELETE FROM Building WHERE IdBuilding = 10");
    EXPECT_EQ(">u+20@unclaimed -b+10 ", Steps(tree_.Refresh()))
        << "a unit never disappears with a building's node";
    EXPECT_EQ("", Steps(tree_.Refresh()));
}

TEST_F(PropertyTreeTest, KeepsWhatItHadWhenTheBooksCannotBeRead) {
    tree_.Refresh();
    core::App().Connection.Close();
    EXPECT_ANY_THROW(tree_.Refresh());
    EXPECT_EQ(3U, tree_.UnitCount());
}

TEST_F(PropertyTreeTest, MovesAUnitWithItsRowsAfterAsking) {
    Run("INSERT INTO AutoEvent (IdAutoEvent, IdUnit, IdBuilding) VALUES (1, 20, 10)");
    Run("INSERT INTO Transactions (IdTransaction, IdUnit, IdBuilding) VALUES (2, 20, 10)");
    Run("INSERT INTO Transactions (IdTransaction, IdUnit, IdBuilding) VALUES (3, 21, 10)");
    std::string notified;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t, std::int32_t) {
        notified += std::to_string(core::KindNumber(kind)) + ";";
    });
    support::ScriptedDialogs dialogs({false, true});
    EXPECT_FALSE(shell::MoveUnit(20, 11));
    EXPECT_EQ("10", Ask("SELECT IdBuilding FROM Unit WHERE IdUnit = 20"));
    EXPECT_EQ("", notified);

    EXPECT_TRUE(shell::MoveUnit(20, 11));
    EXPECT_EQ("Verify Move", dialogs.Heard().back().title);
    EXPECT_EQ("29;19;10;", notified);
    EXPECT_EQ("11", Ask("SELECT IdBuilding FROM Unit WHERE IdUnit = 20"));
    EXPECT_EQ("11", Ask("SELECT IdBuilding FROM AutoEvent WHERE IdAutoEvent = 1"));
    EXPECT_EQ("11", Ask("SELECT IdBuilding FROM Transactions WHERE IdTransaction = 2"));
    EXPECT_EQ("10", Ask("SELECT IdBuilding FROM Transactions WHERE IdTransaction = 3"));
    EXPECT_EQ("True", Ask("SELECT Multi FROM Building WHERE IdBuilding = 11"));
    EXPECT_EQ("True", Ask("SELECT Multi FROM Building WHERE IdBuilding = 10"))
        << "the one left behind stays as it is";
}

TEST_F(PropertyTreeTest, LeavesTheBooksAloneWhenAMoveCannotBe) {
    core::Preferences().ConfirmMoves = false;
    support::ScriptedDialogs dialogs;
    EXPECT_FALSE(shell::MoveUnit(20, 999)) << "the building was deleted in the meantime";
    EXPECT_FALSE(shell::MoveUnit(999, 11));
    EXPECT_EQ(2U, dialogs.Heard().size()) << "said, not asked";
    core::App().Connection.RunScript("DROP TABLE Transactions");
    EXPECT_ANY_THROW(shell::MoveUnit(20, 11));
    EXPECT_EQ("10", Ask("SELECT IdBuilding FROM Unit WHERE IdUnit = 20"));
}

} // namespace
