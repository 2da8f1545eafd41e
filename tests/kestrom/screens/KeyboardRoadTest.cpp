#include <gmock/gmock.h>

#include <QComboBox>
#include <QTest>

#include "kestrom/screens/SampleEditors.h"
#include "platform/qt/Text.h"
#include "shell/screens/frmKestrom.h"
#include "support/screens/Driving.h"

namespace {

using testing::IsEmpty;

/// The whole program, and a user who has only a keyboard.
class KeyboardRoad : public tests::SampleEditors {
  protected:
    KeyboardRoad() {
        shell::screens::WindowServices services;
        services.commands = kestrom::MenuCommands();
        services.hasEditor = core::HasEditor;
        services.end.endProcess = [] {};
        window_ = std::make_unique<shell::screens::frmKestrom>(services);
        window_->Setup({});
        support::SettleEvents();
    }

    /// The window in front: the form that is open, or the main window.
    QWidget& Front() {
        const auto forms = Open();
        QWidget& front = forms.empty() ? static_cast<QWidget&>(*window_) : *forms.back();
        QApplication::setActiveWindow(&front);
        return front;
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QWidget* const menu = QApplication::activePopupWidget();
        QWidget& front = Front();
        QWidget* const focus = front.focusWidget() ? front.focusWidget() : &front;
        QTest::keyClick(menu ? menu : focus, key, with);
        support::SettleEvents();
    }
    void Type(const char* text) {
        QWidget& front = Front();
        QTest::keyClicks(front.focusWidget() ? front.focusWidget() : &front,
                         QString::fromUtf8(text));
    }
    /// Tabs on to the control of this name.
    void TabTo(const char* name) {
        std::string passed;
        for (int i = 0; i < 200; ++i) {
            const QWidget* const focus = Front().focusWidget();
            if (focus && focus->objectName() == QLatin1String(name)) return;
            Press(Qt::Key_Tab);
        }
        FAIL() << name << " can't be reached in " << platform::qt::FromScreen(Front().objectName());
    }
    /// Goes down a list to what begins so.
    void PickIn(const char* list, const char* text) {
        TabTo(list);
        const auto& box = support::Find<QComboBox>(Front(), list);
        for (int row = 0; row < box.count(); ++row) {
            if (box.currentText().startsWith(QLatin1String(text))) return;
            Press(Qt::Key_Down);
        }
        FAIL() << list << " offers no " << text;
    }
    /// Chooses an item of the menu bar by the letters that are underlined.
    void Choose(Qt::Key menu, Qt::Key item) {
        Press(menu, Qt::AltModifier);
        ASSERT_TRUE(QApplication::activePopupWidget()) << "the menu opens";
        Press(item);
    }
    std::string FrontName() { return platform::qt::FromScreen(Front().objectName()); }

    std::unique_ptr<shell::screens::frmKestrom> window_;
};

TEST_F(KeyboardRoad, GoesFromANewBuildingToAPaidRent) {
    // A building with its unit
    Press(Qt::Key_5, Qt::ControlModifier);
    Press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(FrontName(), "frmBuilding");
    Type("12 Keyboard Ct");
    Press(Qt::Key_Tab, Qt::ControlModifier);
    TabTo("txtUnit");
    Type("1A");
    Press(Qt::Key_Tab);
    Type("Avaliable");
    Press(Qt::Key_Tab);
    Type("950.50");
    Press(Qt::Key_Return);
    ASSERT_EQ(FrontName(), "frmKestrom");
    EXPECT_EQ(Ask("SELECT Rent FROM Unit, Building WHERE Unit.IdBuilding = Building.IdBuilding "
                  "AND Building.Address = '12 Keyboard Ct'"),
              "950.5");

    // Who is to live there
    Press(Qt::Key_6, Qt::ControlModifier);
    Press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(FrontName(), "frmTenant");
    Type("Tabber");
    Press(Qt::Key_Tab);
    Type("Kay");
    Press(Qt::Key_Return);
    ASSERT_EQ(FrontName(), "frmKestrom");

    // The lease
    Choose(Qt::Key_T, Qt::Key_L);
    ASSERT_EQ(FrontName(), "frmLeaseWizard");
    Press(Qt::Key_Return);
    PickIn("cboProperty", "12 Keyboard Ct");
    Press(Qt::Key_Return);
    PickIn("cboTenant", "Tabber");
    Press(Qt::Key_Return);
    TabTo("dpStartDate");
    Press(Qt::Key_A, Qt::ControlModifier);
    Type("11/1/2026");
    TabTo("txtRent");
    Press(Qt::Key_A, Qt::ControlModifier);
    Type("950.50");
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    ASSERT_THAT(Heard(), IsEmpty());
    ASSERT_EQ(FrontName(), "frmLease") << "it opens, as is ticked";
    Press(Qt::Key_Escape);
    ASSERT_EQ(FrontName(), "frmKestrom");
    const std::string lease =
        Ask("SELECT IdLease FROM Lease, Tenant WHERE Lease.IdTenant = Tenant.IdTenant "
            "AND Tenant.LastName = 'Tabber'");
    EXPECT_EQ(Ask("SELECT RentDue FROM Lease WHERE IdLease = " + lease), "950.5");

    // Its first rent
    Press(Qt::Key_4, Qt::ControlModifier);
    Press(Qt::Key_F, Qt::ControlModifier);
    Type("12 Keyboard");
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    Choose(Qt::Key_R, Qt::Key_P);
    ASSERT_EQ(FrontName(), "frmRentPayment");
    TabTo("txtCheckNumber");
    Type("1001");
    Press(Qt::Key_Return);
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_EQ(FrontName(), "frmKestrom");
    EXPECT_EQ(Ask("SELECT RentDue FROM Lease WHERE IdLease = " + lease), "0");
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions WHERE CheckNum = '1001' AND IdLease = " + lease),
              "950.5");
}

} // namespace
