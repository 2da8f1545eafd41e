#include <gmock/gmock.h>

#include <QTabBar>

#include "core/EditRecord.h"
#include "core/Preferences.h"
#include "core/Settings.h"
#include "records/screens/RelatedDBm.h"
#include "records/screens/RelatedDBs.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::RelatedDBm;
using records::screens::RelatedDBs;

/// Takes the place of the editors of a kind and notes what it is asked to open.
class OpenedNote {
  public:
    explicit OpenedNote(core::RecordKind kind) : kind_(kind) {
        core::RegisterOpener(kind, [this](const core::EditRequest& request) { last_ = request; });
    }
    ~OpenedNote() { core::RegisterOpener(kind_, nullptr); }
    OpenedNote(const OpenedNote&) = delete;
    OpenedNote& operator=(const OpenedNote&) = delete;
    core::EditRequest Last() { return std::exchange(last_, {}); }

  private:
    core::RecordKind kind_;
    core::EditRequest last_;
};

class RelatedPanelTest : public ScreenTest {};

void ShowTab(const RelatedDBm& panel, const char* caption) {
    QTabBar& tabs = Find<QTabBar>(panel, "tabs");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (tabs.tabText(tab) == QLatin1String(caption)) return tabs.setCurrentIndex(tab);
    }
    FAIL() << "no tab " << caption;
}

TEST_F(RelatedPanelTest, ShowsTheTabsOfItsOwner) {
    RelatedDBm panel;
    panel.show();
    EXPECT_EQ(Find<QTabBar>(panel, "tabs").tabText(0), QStringLiteral("No DB type selected"));
    panel.Load(core::kUnit, 0);
    EXPECT_EQ(GridText(panel.List()), "\n");
    EXPECT_FALSE(Find<QToolButton>(panel, "cmdAdd").isEnabled()) << "the unit isn't saved yet";
    panel.Load(core::kUnit, 20);
    ShowTab(panel, "Rooms");
    EXPECT_EQ(GridText(panel.List()),
              "Room Type|Flooring|Dimensions|Phone|Cable\nKitchen| | |No|No\n");
    panel.Load(core::kUnit, 21);
    EXPECT_EQ(GridText(panel.List()), "Room Type|Flooring|Dimensions|Phone|Cable\n")
        << "another unit's rooms in the same tab";
    panel.Load(core::kBuilding, 10);
    ShowTab(panel, "Mortgages");
    EXPECT_EQ(panel.List().Model().rowCount(), 2);
}

TEST_F(RelatedPanelTest, ABadDateHidesNothingAndAListThatCannotBeReadSaysSo) {
    Run("UPDATE Lease SET DateActive = '2/30/2024', Status = 'Active' WHERE IdLease = 40");
    Run("INSERT INTO Lease (IdLease, IdUnit, DateActive, Status) "
        "VALUES (41, 20, '03/01/2024', 'Expired')");
    RelatedDBm panel;
    panel.show();
    panel.Load(core::kUnit, 20);
    EXPECT_EQ(panel.List().Model().rowCount(), 2);
    EXPECT_NE(GridText(panel.List()).find("2/30/2024"), std::string::npos);
    core::App().Connection.RunScript("DROP TABLE Room");
    ShowTab(panel, "Rooms");
    EXPECT_THAT(panel.List().EmptyText().toStdString(),
                testing::StartsWith("This list can't be read: "));
    EXPECT_FALSE(Find<QToolButton>(panel, "cmdDelete").isEnabled());
}

TEST_F(RelatedPanelTest, OpensAndAddsWithItsOwnerAsParent) {
    OpenedNote rooms(core::kRoom);
    RelatedDBm panel;
    panel.show();
    panel.Load(core::kUnit, 20);
    EXPECT_FALSE(Find<QToolButton>(panel, "cmdAdd").isEnabled()) << "leases have no editor here";
    ShowTab(panel, "Rooms");
    ClickOn(Find<QToolButton>(panel, "cmdAdd"));
    EXPECT_EQ(rooms.Last(), (core::EditRequest{.kind = core::kRoom, .parent1 = 20}));
    const core::EditRequest kitchen{.kind = core::kRoom, .id = 80, .parent1 = 20};
    ClickOn(Find<QToolButton>(panel, "cmdEdit"));
    EXPECT_EQ(rooms.Last(), kitchen);
    QTest::keyClick(&panel.List(), Qt::Key_Return);
    EXPECT_EQ(rooms.Last(), kitchen);
    QTest::keyClick(&panel.List(), Qt::Key_Insert);
    EXPECT_EQ(rooms.Last(), (core::EditRequest{.kind = core::kRoom, .parent1 = 20}));
}

TEST_F(RelatedPanelTest, DeletesWhatIsSelectedAndShowsWhatIsLeft) {
    Run("INSERT INTO Room (IdRoom, IdUnit, RoomType) VALUES (81, 20, 'Attic')");
    RelatedDBm panel;
    panel.show();
    panel.Load(core::kUnit, 20);
    ShowTab(panel, "Rooms");
    Answer({false, true});
    QTest::keyClick(&panel.List(), Qt::Key_Delete);
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected room?\n\nAttic"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Room"), "2");
    ClickOn(Find<QToolButton>(panel, "cmdDelete"));
    EXPECT_EQ(Ask("SELECT RoomType FROM Room"), "Kitchen");
    EXPECT_EQ(panel.List().SelectedId(), 80);
}

TEST_F(RelatedPanelTest, HearsOfItsRecordsAndKeepsTheSelection) {
    Run("INSERT INTO Room (IdRoom, IdUnit, RoomType) VALUES (81, 20, 'Attic')");
    RelatedDBm panel;
    panel.show();
    panel.Load(core::kUnit, 20);
    ShowTab(panel, "Rooms");
    panel.List().SelectId(80);
    Run("UPDATE Room SET RoomType = 'A pantry' WHERE IdRoom = 80");
    core::NotifyAll(core::kContent, core::kRecordsChanged, 0);
    EXPECT_EQ(panel.List().Model().CellText(1, 1), QStringLiteral("Kitchen"));
    core::NotifyAll(core::kRoom, core::kRecordsChanged, 0);
    EXPECT_EQ(panel.List().Model().CellText(0, 1), QStringLiteral("A pantry"));
    EXPECT_EQ(panel.List().SelectedId(), 80);
}

TEST_F(RelatedPanelTest, KeepsTheWidthsOfEachListByItsName) {
    core::Preferences().AutoSize = 0;
    {
        RelatedDBm panel;
        panel.show();
        panel.Load(core::kUnit, 20);
        ShowTab(panel, "Rooms");
        panel.List().setColumnWidth(1, 321);
        ShowTab(panel, "Content");
    }
    RelatedDBm panel;
    panel.Load(core::kUnit, 20);
    ShowTab(panel, "Rooms");
    EXPECT_EQ(panel.List().columnWidth(1), 321);
    core::Preferences().AutoSize = 1;
}

TEST_F(RelatedPanelTest, TheSingleListIsNamedAfterItsRecords) {
    Run("INSERT INTO Incident (IdIncident, IdTenant, EntryDate, Severity, Description) "
        "VALUES (97, 30, '12/31/2023', '1 - Caution', 'Noise')");
    RelatedDBs panel;
    panel.show();
    const QLabel& caption = Find<QLabel>(panel, "lblCaption");
    EXPECT_EQ(caption.text(), QStringLiteral("No DB type selected"));
    panel.Load(core::kTenant, 30);
    EXPECT_EQ(caption.text(), QStringLiteral("Incidents"));
    EXPECT_EQ(GridText(panel.List()),
              "Entry Date|Severity|Description\n12/31/2023|1 - Caution|Noise\n");
}

} // namespace
} // namespace support
