#include <gmock/gmock.h>

#include <QAction>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "platform/qt/Text.h"
#include "shell/screens/KestromFixture.h"

namespace {

using platform::qt::FromScreen;
using support::Find;

class HomePicture : public tests::KestromTest {
  protected:
    QTabWidget& Pages() { return Find<QTabWidget>(Window(), "tabHome"); }
    std::string Occupancy() { return FromScreen(Find<QLabel>(Window(), "lblOccupancy").text()); }
};

TEST_F(HomePicture, IsReadWhenItIsLookedAtAndFollowsTheBooks) {
    EXPECT_TRUE(Pages().tabBar()->isVisible());
    EXPECT_EQ(Pages().currentIndex(), 0);
    EXPECT_EQ(Occupancy(), "");
    Pages().setCurrentIndex(1);
    EXPECT_EQ(Occupancy(), "3 of 3 units have a running lease: 100 %.");
    Run("UPDATE Lease SET Status = 'Expired' WHERE IdLease = 40");
    core::NotifyAll(core::kLease, core::kRecordsChanged, 40);
    support::SettleEvents();
    EXPECT_EQ(Occupancy(), "2 of 3 units have a running lease: 67 %.");
}

TEST_F(HomePicture, RemembersThatItIsOffAndWhichPageWasShown) {
    EXPECT_TRUE(Item("mnuPicture").isChecked());
    Pages().setCurrentIndex(1);
    Reopen();
    EXPECT_EQ(Pages().currentIndex(), 1) << "the page that was shown last";
    Item("mnuPicture").trigger();
    EXPECT_FALSE(Pages().tabBar()->isVisible());
    EXPECT_TRUE(Find<QWidget>(Window(), "ucAlerts").isVisible());
    Reopen();
    EXPECT_FALSE(Item("mnuPicture").isChecked());
    EXPECT_FALSE(Pages().tabBar()->isVisible());
    EXPECT_EQ(Pages().currentIndex(), 0);
    Go("LEASES");
    Item("mnuPicture").trigger();
    EXPECT_EQ(Window().SelectedDb(), core::kAlert);
    EXPECT_EQ(Pages().currentIndex(), 1);
    EXPECT_TRUE(Find<QLabel>(Window(), "lblOccupancy").isVisible());
}

} // namespace
