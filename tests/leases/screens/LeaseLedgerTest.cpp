#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/screens/LeaseScreens.h"
#include "leases/screens/frmLease.h"

namespace tests {

namespace {

using leases::RentFlags;
using leases::screens::frmLease;

/// The ledger on the lease's screen.
class LeaseLedger : public LeaseScreenTest {
  protected:
    static QPointer<frmLease> Open() { return support::Show<frmLease>(kLease); }
};

TEST_F(LeaseLedger, AddsEditsAndRemoves) {
    Charge("05/01/2024", 950, RentFlags::PeriodRent);
    Charge("05/06/2024", 40);
    const auto form = Open();
    const QWidget& ledger = Find<QWidget>(*form, "ucLL");
    EXPECT_EQ(Text(ledger, "lblTotal"), "2 open: 990.00");
    EXPECT_EQ(ListRows(*form, "lvw"), (Said{"05/06/2024|Late Fee|Late Fee|40.00|990.00",
                                            "05/01/2024|Rent|Rent due 05/01/2024|950.00|950.00"}));
    Answer({true});
    Trigger(ledger, "mnuSelectOther");
    Find<QTabWidget>(*form, "tabs").setCurrentIndex(4);
    ClickOn(Find<QPushButton>(ledger, "cmdEditDelete"));
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected item?\n\n05/06/2024, Late Fee"});
    EXPECT_EQ(Text(*form, "txtRentDue"), "950.00");
    Charge("05/07/2024", 1);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    Answer({true});
    Trigger(ledger, "mnuSelectAll");
    ClickOn(Find<QPushButton>(ledger, "cmdEditDelete"));
    EXPECT_EQ(Heard(),
              Said{"Confirm Delete: Delete all selected items?\n\n05/07/2024, Late Fee, 1.00\n"
                   "05/01/2024, Rent due 05/01/2024, 950.00"});
    EXPECT_EQ(Text(ledger, "lblTotal"), "Nothing is open");
    EXPECT_EQ(Lease("RentDue"), "0");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(LeaseLedger, ActsOnHighlightedRowsOnly) {
    Charge("05/01/2024", 950, RentFlags::PeriodRent);
    Charge("05/06/2024", 40);
    const auto form = Open();
    Find<QTabWidget>(*form, "tabs").setCurrentIndex(4);
    QApplication::setActiveWindow(form);
    auto& list = Find<QTreeWidget>(*form, "lvw");
    const auto& remove = Find<QPushButton>(*form, "cmdEditDelete");
    list.setFocus();
    EXPECT_EQ(list.selectedItems(), QList{list.topLevelItem(0)}) << "shown as current";
    QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier); // takes the selection away
    EXPECT_TRUE(list.selectedItems().isEmpty());
    EXPECT_FALSE(remove.isEnabled());
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(Heard(), Said{});
    QTest::keyClick(&list, Qt::Key_Down);
    Answer({true, true});
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected item?\n\n05/01/2024, Rent"})
        << "and then nothing is highlighted";
}

} // namespace

} // namespace tests
