#include <QDropEvent>
#include <QLayout>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <set>

#include "core/Globals.h"
#include "core/Preferences.h"
#include "shell/screens/PropertyTreeView.h"
#include "shell/screens/frmDBExplorer.h"
#include "shell/screens/frmMoveUnit.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using shell::PropertyKind;
using shell::PropertyNode;
using shell::screens::frmDBExplorer;
using shell::screens::frmMoveUnit;
using shell::screens::PropertyTreeView;

class DBExplorer : public ScreenTest {
  protected:
    DBExplorer() {
        core::Preferences() = {};
        form_ = new frmDBExplorer;
        form_->Setup();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(form_));
    }
    ~DBExplorer() override {
        core::Preferences() = {};
        core::App().Expert = false;
    }

    PropertyTreeView& Tree() const { return Find<PropertyTreeView>(*form_, "trv"); }
    static void Write(std::string& text, const QTreeWidgetItem& item, int depth) {
        text += std::string(static_cast<std::size_t>(depth), ' ') +
                platform::qt::FromScreen(item.text(0)) + (item.isExpanded() ? "-" : "") + "\n";
        for (int i = 0; i < item.childCount(); ++i)
            Write(text, *item.child(i), depth + 1);
    }
    /// A line a node; "-" marks the expanded ones.
    std::string Shown() const {
        std::string text;
        for (int i = 0; i < Tree().topLevelItemCount(); ++i)
            Write(text, *Tree().topLevelItem(i), 0);
        return text;
    }
    QPoint PlaceOf(PropertyNode node) const {
        Tree().Select(node);
        return Tree().visualItemRect(Tree().currentItem()).center();
    }
    /// Drops what a drag of one node carries onto another. Returns false if it isn't accepted.
    bool Drop(PropertyNode dragged, PropertyNode target) {
        Tree().Select(dragged);
        const std::unique_ptr<QMimeData> data(
            Tree().model()->mimeData({Tree().selectionModel()->currentIndex()}));
        const QPoint place = PlaceOf(target);
        const auto send = [&](auto&& event) {
            QApplication::sendEvent(Tree().viewport(), &event);
            return event.isAccepted();
        };
        send(QDragEnterEvent(place, Qt::MoveAction, data.get(), Qt::LeftButton, {}));
        const bool over =
            send(QDragMoveEvent(place, Qt::MoveAction, data.get(), Qt::LeftButton, {}));
        const bool dropped =
            send(QDropEvent(place, Qt::MoveAction, data.get(), Qt::LeftButton, {}));
        SettleEvents();
        return over && dropped;
    }

    QPointer<frmDBExplorer> form_;
};

constexpr const char* kBefore =
    "Buildings-\n 12 Elm St-\n  Unit A\n  Unit B\n Oak Rd\n"
    "  Unit 1\nUnclaimed-\n";
constexpr const char* kAfter =
    "Buildings-\n 12 Elm St-\n  Unit A\n Oak Rd-\n"
    "  Unit 1\n  Unit B\nUnclaimed-\n";

TEST_F(DBExplorer, KeepsWhatIsExpandedAndSelectedWhenItReadsAgain) {
    Tree().Select({PropertyKind::Unit, 20});
    EXPECT_EQ(Shown(), kBefore);
    Run("UPDATE Building SET Address = 'Ash Rd' WHERE IdBuilding = 11");
    QTest::keyClick(form_.data(), Qt::Key_F5);
    EXPECT_EQ(Tree().Selected(), (PropertyNode{PropertyKind::Unit, 20}));
    EXPECT_NE(Shown().find(" Ash Rd\n  Unit 1"), std::string::npos) << Shown();
    EXPECT_NE(Shown().find(" 12 Elm St-"), std::string::npos);
    EXPECT_TRUE(MnemonicFaults(*form_).empty());
    EXPECT_TRUE(TabOrderFaults(*form_).empty());
    EXPECT_EQ(Portray(*form_, "frmDBExplorer"), Said{});
}

TEST_F(DBExplorer, MovesAUnitThatIsDroppedOnABuilding) {
    const PropertyNode unit{PropertyKind::Unit, 20};
    const PropertyNode building{PropertyKind::Building, 11};
    Answer({false, true});
    EXPECT_TRUE(Drop(unit, building));
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_EQ(Ask("SELECT IdBuilding FROM Unit WHERE IdUnit = 20"), "10") << "No moves nothing";
    EXPECT_TRUE(Drop(unit, building));
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_EQ(Ask("SELECT IdBuilding FROM Unit WHERE IdUnit = 20"), "11");
    EXPECT_EQ(Ask("SELECT Multi FROM Building WHERE IdBuilding = 11"), "True");
    EXPECT_EQ(Shown(), kAfter);
    EXPECT_FALSE(Drop(unit, {PropertyKind::Unclaimed}));
    EXPECT_FALSE(Drop(unit, {PropertyKind::Unit, 21}));
    EXPECT_FALSE(Drop(building, {PropertyKind::Building, 10}));
    EXPECT_EQ(Shown(), kAfter);
    EXPECT_TRUE(Heard().empty()) << "only a unit goes, and only to a building";
}

TEST_F(DBExplorer, MovesAUnitByKeyboardOnce) {
    core::Preferences().ConfirmMoves = false;
    auto& move = Find<QPushButton>(*form_, "cmdMove");
    Tree().Select({PropertyKind::Building, 10});
    EXPECT_FALSE(move.isEnabled());
    Tree().Select({PropertyKind::Unit, 20});
    support::ClickOn(move);
    QPointer<frmMoveUnit> chooser;
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (auto* const found = qobject_cast<frmMoveUnit*>(window)) chooser = found;
    ASSERT_TRUE(chooser);
    EXPECT_EQ(Portray(*chooser, "frmMoveUnit"), Said{});
    auto& find = Find<QLineEdit>(*chooser, "txtFind");
    support::Type(find, "oak");
    auto& list = Find<QListWidget>(*chooser, "lstBuildings");
    EXPECT_EQ(platform::qt::FromScreen(list.currentItem()->text()), "Oak Rd");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_TRUE(!chooser || !chooser->isVisible());
    EXPECT_EQ(Shown(), kAfter);
    EXPECT_TRUE(Heard().empty());
}

TEST_F(DBExplorer, DeletesWhatIsSelectedAfterAQuestion) {
    Tree().setFocus();
    for (const PropertyNode folder :
         {PropertyNode{PropertyKind::Buildings}, PropertyNode{PropertyKind::Unclaimed}}) {
        Tree().Select(folder);
        QTest::keyClick(&Tree(), Qt::Key_Delete);
    }
    EXPECT_TRUE(Heard().empty()) << "a folder isn't a record";
    Tree().Select({PropertyKind::Unit, 20});
    Answer({false, true});
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit WHERE IdUnit = 20"), "1");
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit WHERE IdUnit = 20"), "0");
    EXPECT_EQ(Shown().find("Unit B"), std::string::npos);
    core::Preferences().ConfirmDelete = false;
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit"), "2") << "the neighbour isn't selected";
}

TEST_F(DBExplorer, MovesAUnitToABuildingThatWasAddedSince) {
    core::Preferences().ConfirmMoves = false;
    core::Preferences().ConfirmDelete = false;
    Run("INSERT INTO Building (IdBuilding, Address) VALUES (12, 'Pine Rd')");
    Q_EMIT Tree().UnitDropped(20, 12);
    SettleEvents();
    EXPECT_NE(Shown().find(" Pine Rd-\n  Unit B"), std::string::npos) << Shown();
    Run("DELETE FROM Building WHERE IdBuilding = 10");
    form_->RefreshTree();
    form_->RefreshTree();
    EXPECT_NE(Shown().find("Unclaimed-\n Unit A"), std::string::npos) << Shown();
}

TEST_F(DBExplorer, OffersTheConsoleToAdvancedUsersOnly) {
    const auto isShown = [](const frmDBExplorer& form) {
        auto& tabs = Find<QTabWidget>(form, "tab1");
        return tabs.isTabVisible(tabs.indexOf(&Find<QWidget>(form, "pageData")));
    };
    EXPECT_FALSE(isShown(*form_));
    auto& pages = Find<QTabWidget>(*form_, "tab1");
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(form_.data(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_NE(pages.currentWidget(), &Find<QWidget>(*form_, "pageData"));
    }
    core::App().Expert = true;
    auto* const expert = new frmDBExplorer;
    expert->Setup();
    EXPECT_TRUE(isShown(*expert));

    // A key that two share only moves the focus between them.
    auto& all = Find<QTabWidget>(*expert, "tab1");
    for (int page = 0; page < all.count(); ++page) {
        all.setCurrentIndex(page);
        support::SettleEvents();
        EXPECT_EQ(support::MnemonicFaults(*expert), Said{});
        std::set<QKeySequence> taken;
        for (const auto* const button : expert->findChildren<QPushButton*>())
            if (button->isVisible()) taken.insert(QKeySequence::mnemonic(button->text()));
        for (int tab = 0; tab < all.count(); ++tab)
            EXPECT_TRUE(taken.insert(QKeySequence::mnemonic(all.tabText(tab))).second) << tab;
        for (const auto* const menu : expert->layout()->menuBar()->findChildren<QMenu*>())
            EXPECT_TRUE(taken.insert(QKeySequence::mnemonic(menu->title())).second)
                << menu->title().toStdString();
    }
}

} // namespace
} // namespace support
