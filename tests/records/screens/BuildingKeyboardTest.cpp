#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTest>

#include "records/screens/frmBuilding.h"
#include "support/screens/Driving.h"
#include "support/screens/ScreenFixture.h"

namespace {

using records::screens::frmBuilding;
using support::TypeAndTab;
using Said = std::vector<std::string>;

/// A person without a mouse.
class BuildingKeyboardTest : public support::ScreenTest {
  protected:
    BuildingKeyboardTest() {
        form_ = new frmBuilding;
        form_->Setup(0, 0);
        QApplication::setActiveWindow(form_);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QWidget* const menu = QApplication::activePopupWidget();
        QWidget* const focus = form_->focusWidget();
        QTest::keyClick(menu ? menu : focus ? focus : form_.data(), key, with);
    }
    /// Tabs on to the control of this name.
    void TabTo(const char* name) {
        for (int i = 0; i < 200; ++i) {
            const QWidget* const focus = form_->focusWidget();
            if (focus && focus->objectName() == QLatin1String(name)) return;
            Press(Qt::Key_Tab);
        }
        FAIL() << name << " can't be reached";
    }
    void AddUnit() {
        Press(Qt::Key_N, Qt::ControlModifier);
        support::SettleEvents();
    }

    QPointer<frmBuilding> form_;
};

TEST_F(BuildingKeyboardTest, EntersABuildingOfThreeUnits) {
    for (const char* const text : {"12 O'Hara Ct", "97301", "Salem", "Marion", "OR"})
        TypeAndTab(*form_, text);
    Press(Qt::Key_Tab, Qt::ControlModifier); // the next page
    TabTo("txtUnit");
    TypeAndTab(*form_, "1A");
    TypeAndTab(*form_, "Avaliable");
    TypeAndTab(*form_, "950.50");
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Ask("SELECT Address FROM Building WHERE IdBuilding = 1000"), "12 O'Hara Ct");

    Answer({true});
    AddUnit();
    EXPECT_EQ(Heard().size(), 1U) << "whether it is to become a building of several";
    for (const char* const unit : {"2B", "3C"}) {
        AddUnit();
        EXPECT_EQ(form_->focusWidget()->objectName(), QStringLiteral("txtUnit"));
        TypeAndTab(*form_, unit); // the name "<new>" is selected, so typing replaces it
        TypeAndTab(*form_, "Hold");
        TypeAndTab(*form_, "800");
    }
    Press(Qt::Key_Return);
    EXPECT_EQ(Heard(), Said{});
    EXPECT_FALSE(form_ && form_->isVisible());
    EXPECT_EQ(Ask("SELECT Multi FROM Building WHERE IdBuilding = 1000"), "True");
    std::string units;
    platform::Recordset row;
    row.Open(core::App().Connection,
             "SELECT Unit, Status, Rent FROM Unit WHERE IdBuilding = 1000 ORDER BY Unit");
    for (; !row.Eof(); row.MoveNext()) {
        units +=
            row["Unit"].AsText() + " " + row["Status"].AsText() + " " + row["Rent"].AsText() + "\n";
    }
    EXPECT_EQ(units, "1A Avaliable 950.5\n2B Hold 800\n3C Hold 800\n");
}

TEST_F(BuildingKeyboardTest, TheMenuOpensByItsLetter) {
    TypeAndTab(*form_, "5 Menu St");
    Press(Qt::Key_B, Qt::AltModifier);
    ASSERT_TRUE(QApplication::activePopupWidget()) << "Alt+B";
    Press(Qt::Key_A);
    EXPECT_EQ(Ask("SELECT Address FROM Building WHERE IdBuilding = 1000"), "5 Menu St");
}

} // namespace
